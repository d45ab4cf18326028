#include <climits>

#include "client.h"
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
        const auto value = [result](const char* name) { return result->get(name, 0, INT_MAX); };
        const Values<const char*> values{value("name").text,
                                         value("count").value.get<int>(),
                                         value("ratio").value.get<double>(),
                                         result->present("quiet", 0, INT_MAX),
                                         value("file").status == 0 ? value("file").text : ""};
        values.print();
    } else {
        std::fprintf(stderr, "%s\n", parser->getErrorDesc());
    }
    result->destroy();
    parser->destroy();
    return code;
}
