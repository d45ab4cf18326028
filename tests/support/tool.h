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

// The rows of a table that is written as a text: one a line, its cells between bars that have a
// blank or the end of the line behind them. Cells that are missing are empty.
std::vector<Words> rowsOf(const std::string& table, std::size_t columns);

// The words of a text; in a word '_' stands for a blank, and '' alone for the empty word.
Words wordsOf(const std::string& text);

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
    int parseText(const char* text) { return parser->parseStream(text, result); }
    std::string error() { return parser->getErrorDesc(); }
    void startNewResult();

    // Numbers count from the first that was drawn since the tool was made.
    int number(int relative) const { return relative == INT_MAX ? INT_MAX : base + relative; }

    // "text@number" of every value, "@number" of every occurrence of a switch.
    std::string walk(const char* name, int from = 0, int to = INT_MAX);
    std::string show(const Value& value) const;  // one of them; empty when nothing was found

    // The texts of the values, as "1|2".
    std::string values(const char* name);

    // All that stands under names declared by `option`: "level=1|2 dry(2) -- a b". A number in
    // brackets counts the occurrences where they are not as many as the values.
    std::string stored();

    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    Recorder handler;

private:
    std::string storedUnder(const char* name);

    Words names;
    int base;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_TOOL_H
