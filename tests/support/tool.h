// A tool as clients write them, for stories through the public interface.

#ifndef ZARN_TESTS_SUPPORT_TOOL_H
#define ZARN_TESTS_SUPPORT_TOOL_H

#include <climits>
#include <functional>
#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace zarn_3_3::testing_support {

using Words = std::vector<std::string>;

// Records what it hears: "option <name>; value <name>=<text>; unknown <argument>".
class Recorder final : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return hear(std::string("option ") + name); }
    bool onValueParse(const char* name, const Value& value) override {
        return hear(std::string("value ") + name + "=" + value.text);
    }
    bool onUknownArgument(const char* argument) override {
        return hear(std::string("unknown ") + argument);
    }

    std::string events;
    std::function<bool(const std::string& event)> answer;  // without, every answer is true

private:
    bool hear(const std::string& event);
};

// Owns a parser, a result and a handler that `listen` registers.
class Tool {
public:
    explicit Tool(int flags = 0);
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    ~Tool();

    IParser* operator->() const { return parser; }
    IOption& option(const std::string& names, das_variant_type_t type = vtString);
    Recorder& listen();

    int parse(const Words& arguments);
    std::string error() { return parser->getErrorDesc(); }
    std::string values(const char* name);  // as "1|2"
    void startNewResult();

    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    Recorder handler;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_TOOL_H
