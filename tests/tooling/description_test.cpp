// What a tool says of itself to machines.

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/failing_new.h"
#include "support/grouping_locale.h"
#include "support/tool.h"
#include "text/utf8.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {
namespace {

using testing_support::PlainTool;

const ToolInfo sonde{sizeof sonde, "sonde", "2.1", "look into \"archives\"\b\f\n\r\x1b\xff"};

void declareNumbers(IParser& parser) {
    parser.option("few", "", vtS32, "numbers:Numbers").defaultValue(-1234567);
    parser.option("many", "", vtU64, "numbers").defaultValue(~0ULL);
    parser.option("part", "", vtDouble, "numbers").allowValue(0.1).allowValue(1234567.0);
    parser.option("third", "", vtDouble, "numbers").defaultValue(1 / 3.0).tokenize(':');
    parser.option("count", "", vtU32, "numbers").defaultValue(7U);
    parser.option("offset", "", vtS64, "numbers").defaultValue(-1LL);
    parser.option("wet", "", vtBool, "numbers").defaultValue(false);
    parser.option("odd", "", vtBlob, "numbers").defaultValue(variant_t());
}

void declareTexts(IParser& parser) {
    parser.action("pack,p", "Make an archive.", vtNull, "").synonym("box");
    parser.action("list", "Look.", vtNull, "");
    parser.modifier("level,l", "pack,list", "How \\ hard.\tZwölf", vtString, "zarn_hidden:Trials")
        .allowValue("fast")
        .allowValue("")
        .allowDeprecatedValue("slow", "fast");
    parser.option("file", "", vtString, "").positional().tokenize(0);
    parser.addOptionFileOption("Further arguments.", "");
    parser.allowSimultaneousActions({"pack", "list"});
    parser.allowSimultaneousActions({"list"});
    parser.allowSimultaneousActions({});
}

void declareWhatIsRefused(IParser& parser) {
    parser.option("new,file", "", vtString, "");
    parser.option("one,two,three,four", "", vtString, "");
    parser.option("one,two,three", "", vtString, "").defaultValue("x");
    parser.option("one,two,th", "", vtString, "");
}

void declareAll(IParser& parser) {
    declareTexts(parser);
    declareNumbers(parser);
    declareWhatIsRefused(parser);
    nameValue(&parser, "file", "FILE");
}

std::string expected() {
    std::ifstream file(TOOLING_DATA "/every_key.json");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string describe(IParser* parser, const ToolInfo& info) {
    const char* json = nullptr;
    EXPECT_EQ(describeVocabulary(parser, &info, &json), toolingDone);
    return json;
}

TEST(Description, IsTheSameInEveryLocaleAndChangesNothing) {
    PlainTool tool(flagUnknownIsError);
    declareAll(*tool.parser);
    EXPECT_EQ(tool.parse({"--nonsense"}), resultRuleBroken);
    const std::string error = tool->getErrorDesc();

    EXPECT_EQ(describe(tool.parser, sonde), expected());
    const GroupingLocale locale;
    EXPECT_EQ(describe(tool.parser, sonde), expected());
    EXPECT_EQ(tool->getErrorDesc(), error);
}

TEST(Description, LeavesOutWhatIsAbsent) {
    const PlainTool tool;
    ToolInfo info = sonde;
    EXPECT_EQ(describe(tool.parser, {sizeof info, nullptr, "", nullptr}),
              "{\n  \"format\": 1\n}\n");
    info.size = offsetof(ToolInfo, version);  // of an older caller
    EXPECT_EQ(describe(tool.parser, info), "{\n  \"format\": 1,\n  \"name\": \"sonde\"\n}\n");
}

TEST(Description, KeepsTheFirstHundredRefusals) {
    const PlainTool tool;
    for (int i = 0; i < 300; ++i) {
        tool->option(("one,two,three" + std::to_string(i / 2)).c_str(), "", vtString, "");
    }
    const std::string json = describe(tool.parser, sonde);
    std::size_t count = 0;
    for (std::size_t at = 0; (at = json.find("\"three", at)) != std::string::npos; ++at) {
        ++count;
    }
    EXPECT_EQ(count, 200U) << "each stands among the names, and as the one to blame";
    EXPECT_EQ(json.find("three100"), std::string::npos);
}

TEST(Description, FailsForWhatCannotBeAsked) {
    const PlainTool tool;
    const char* json = nullptr;
    EXPECT_EQ(describeVocabulary(nullptr, &sonde, &json), toolingFailed);
    EXPECT_STREQ(json, "");
    EXPECT_EQ(describeVocabulary(tool.parser, nullptr, &json), toolingFailed);
    EXPECT_EQ(describeVocabulary(tool.parser, &sonde, nullptr), toolingFailed);
}

TEST(Question, NeedsMemoryForItsAnswerAndNothingElse) {
    PlainTool tool;
    declareAll(*tool.parser);
    const char* const line[] = {"sonde", "--zarn-answer", "describe", "--", "word"};
    long n = 0;
    for (bool hasStruck = true; hasStruck; ++n) {
        const char* json = nullptr;
        static_cast<Countdown&>(memory) = {n + 1, false, false};
        const int code = answerQuestion(tool.parser, &sonde, 5, line, &json);
        hasStruck = memory.hasStruck;
        static_cast<Countdown&>(memory) = {};
        EXPECT_EQ(code, hasStruck ? toolingFailed : questionAnswered) << "allocation " << n;
        EXPECT_EQ(json, hasStruck ? std::string() : describe(tool.parser, sonde));
    }
    EXPECT_GT(n, 5);
}

TEST(Description, TellsThatMemoryRanOutForADeclaration) {
    const PlainTool tool;
    static_cast<Countdown&>(memory) = {1, false, false};
    tool->option("one,two", "A description.", vtString, "sections:of some length");
    EXPECT_TRUE(memory.hasStruck);
    static_cast<Countdown&>(memory) = {1, true, false};
    tool->option("three", "A description.", vtString, "sections:of some length");
    static_cast<Countdown&>(memory) = {};

    const std::string json = describe(tool.parser, sonde);
    EXPECT_NE(json.find("\"reason\": \"noMemory\""), std::string::npos);
    EXPECT_EQ(json.find("three"), std::string::npos);
    EXPECT_FALSE(tool->isOptionDeclared("three", false, nullptr));
}

struct LineRow {
    std::vector<const char*> arguments;
    int code;
    bool isDescribed;
};

const LineRow lines[] = {
    {{"sonde", "--zarn-answer", "describe"},                     questionAnswered, true },
    {{"sonde", "--zarn-answer", "describe", "--", "x"},          questionAnswered, true },
    {{"sonde", "--zarn-answer", "describe", "x"},                ordinaryLine,     false},
    {{"sonde", "--zarn-answer", "describe:2"},                   questionAnswered, false},
    {{"sonde", "--zarn-answer"},                                 ordinaryLine,     false},
    {{"sonde", "--zarn-answer", "describe", nullptr},            questionAnswered, true },
    {{"sonde", "--zarn-answer", "describe", "--", nullptr, "x"}, questionAnswered, true },
    {{"sonde", "--zarn-answer", nullptr},                        ordinaryLine,     false},
    {{"sonde", nullptr, "describe"},                             ordinaryLine,     false},
    {{"sonde", "-zarn-answer", "describe"},                      ordinaryLine,     false},
    {{"sonde", "-q", "--zarn-answer", "describe"},               ordinaryLine,     false},
    {{},                                                         ordinaryLine,     false},
};

TEST(Question, IsAnsweredWhenNothingStandsInFrontOfIt) {
    const PlainTool tool;
    for (const LineRow& row : lines) {
        const char* answer = nullptr;
        const int argc = static_cast<int>(row.arguments.size());
        EXPECT_EQ(answerQuestion(tool.parser, &sonde, argc, row.arguments.data(), &answer),
                  row.code);
        EXPECT_EQ(answer, row.isDescribed ? describe(tool.parser, sonde) : "");
    }
}

struct CharacterRow {
    const char* text;
    std::size_t length;
};

const CharacterRow characters[] = {
    {"",                 0},
    {"a",                1},
    {"\x80",             0},
    {"\xC2\x80",         2}, // the first that takes two
    {"\xC1\xBF",         0}, // 7F in two bytes
    {"\xE2\x82\xAC",     3},
    {"\xE2\x82",         0},
    {"\xE2\x82z",        0},
    {"\xE0\xA0\x80",     3},
    {"\xE0\x9F\xBF",     0}, // 7FF in three
    {"\xED\x9F\xBF",     3},
    {"\xED\xA0\x80",     0}, // the first surrogate
    {"\xF0\x90\x80\x80", 4},
    {"\xF0\x8F\xBF\xBF", 0}, // FFFF in four
    {"\xF4\x8F\xBF\xBF", 4}, // the last character
    {"\xF4\x90\x80\x80", 0},
    {"\xF5\x80\x80\x80", 0},
};

TEST(CharacterLength, IsThatOfWellFormedOnesAlone) {
    for (const CharacterRow& row : characters) {
        EXPECT_EQ(internal::characterLength(row.text), row.length)
            << testing::PrintToString(row.text);
    }
}

}  // namespace
}  // namespace zarn_3_3
