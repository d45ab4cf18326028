#include <cstdio>

#include "zarn/zarn.h"

int main(int argc, char** argv) {
    zarn::IParser* parser = nullptr;
    zarn::IParseResult* result = nullptr;
    if (zarn::createParser(&parser, zarn::flagUnknownIsError) != zarn::resultOk ||
        parser->createResult(&result) != zarn::resultOk) {
        return 1;
    }
    parser->option("name", "whom to greet", zarn::vtString, "main:Options").defaultValue("world");
    parser->option("count", "how often", zarn::vtS32, "main").defaultValue(1);
    parser->option("ratio", "how loud", zarn::vtDouble, "main").defaultValue(0.5);
    parser->option("quiet", "say nothing", zarn::vtNull, "main");
    parser->option("file", "what to read", zarn::vtString, "main").positional();

    const int code = parser->parseArgsVector(argc, argv, result);
    if (code == zarn::resultOk) {
        const zarn::Value name = result->get("name", 0, 0x7fffffff);
        const zarn::Value file = result->get("file", 0, 0x7fffffff);
        std::printf("%s %d %g %d %s\n",
                    name.text,
                    result->get("count", 0, 0x7fffffff).value.get<int>(),
                    result->get("ratio", 0, 0x7fffffff).value.get<double>(),
                    result->present("quiet", 0, 0x7fffffff) ? 1 : 0,
                    file.status == 0 ? file.text : "");
    } else {
        std::fprintf(stderr, "%s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return code;
}
