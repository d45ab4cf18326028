// A small tool on the installed headers alone; it touches each part of the interface that must
// link.

#include <zarn/tooling.h>
#include <zarn/zarn.h>

#include <climits>
#include <iostream>

namespace {

struct PathRefuser final : zarn::EventHandler {
    bool onValueParse(const char*, const zarn::Value& value) override {
        return value.as<const char*>()[0] != '/';
    }
};

void declare(zarn::IParser& parser) {
    parser.option("name,n", "Who is greeted.", zarn::vtString, "main:Main options");
    parser.option("count,c", "How often.", zarn::vtS32, "main").defaultValue(1);
    parser.option("tone", "How loud.", zarn::vtString, "main").allowValue("loud");
}

void greet(zarn::IParseResult& result) {
    const char* name = zarn::getLastValue(&result, "name", 0, INT_MAX).as<const char*>();
    const int count = result.get("count", 0, INT_MAX).value.get<int>();
    const zarn::Value tone = result.get("tone", 0, INT_MAX);
    for (int i = 0; i < count; ++i) {
        std::cout << "Hello, " << (name ? name : "world") << ", "
                  << plinth2::get_variant_value(tone.value, "normal") << '\n';
    }
    std::cout << zarn::WordWrappedText("Note:", "that was all", 6, 80).getText();
}

}  // namespace

int main(int argc, char** argv) {
    zarn::IParser* parser = nullptr;
    zarn::IParseResult* result = nullptr;
    if (zarn::createParser(&parser, zarn::flagUnknownIsError) != zarn::resultOk ||
        parser->createResult(&result) != zarn::resultOk) {
        return 3;
    }
    PathRefuser refuser;
    parser->addHandler(&refuser);
    declare(*parser);

    const zarn::ToolInfo tool{sizeof tool, "consumer", "1.0", "Greets; loud, if asked to."};
    const char* answer = "";
    int code = zarn::resultOk;
    if (zarn::answerQuestion(parser, &tool, argc, argv, &answer) == zarn::questionAnswered) {
        std::cout << answer;
    } else if (code = parser->parseArgsVector(argc, argv, result); code == zarn::resultOk) {
        greet(*result);
    } else {
        std::cerr << parser->getErrorDesc() << '\n';
    }
    result->destroy();
    parser->destroy();
    return code;
}
