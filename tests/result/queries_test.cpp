// What a result stores, and how it is read back.

#include <gtest/gtest.h>

#include <tuple>

#include "recognizers/argument_parser.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// Numbers: level 1 (values 2, 3), dry 4, level 5 (value 6), dry 7, argument 8, level 10 (11).
class Queries : public testing::Test {
protected:
    Queries() {
        tool.option("level,l", vtS32);
        tool.option("dry", vtNull);
        tool.parse({"--level=1,2", "--dry", "--level=3", "--dry", "--", "a"});
        IArgumentParser::drawIndex();
        tool.parse({"-l=4"});
    }

    Value get(const char* name, int from, int to) {
        return tool.result->get(name, tool.number(from), tool.number(to));
    }
    std::string next() { return tool.show(tool.result->next(nullptr)); }

    Tool tool;
};

TEST_F(Queries, RangeIsHalfOpenForOccurrencesAndClosedForValues) {
    const std::tuple<const char*, int, int, const char*, const char*> ranges[] = {
        {"level", -100, INT_MAX, "1@2 2@3 3@6 4@11", "4@11"},
        {"level", 1,    6,       "1@2 2@3 3@6",      "3@6" },
        {"level", 2,    5,       "",                 ""    },
        {"l",     3,    6,       "2@3 3@6",          "3@6" }, // 2 was given before the range
        {"dry",   4,    5,       "@4 @7",            "@7"  }, // a switch steps whatever the range
    };
    for (const auto& [name, from, to, walk, last] : ranges) {
        const int first = tool.number(from);
        const int end = tool.number(to);
        EXPECT_EQ(tool.walk(name, from, to), walk);
        EXPECT_EQ(tool.result->present(name, first, end), *walk != '\0') << name << from;
        EXPECT_EQ(tool.show(getLastValue(tool.result, name, first, end)), last);
    }
    EXPECT_EQ(get("level", 0, INT_MAX).value, variant_t(1));
}

TEST_F(Queries, OccurrencesAndValuesAreWalkedApart) {
    EXPECT_EQ(tool.show(get("level", 2, INT_MAX)), "1@2");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(5));
    EXPECT_EQ(next(), "2@3");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(10));
    EXPECT_EQ(tool.result->nextPosition(), INT_MAX);
    EXPECT_EQ(next(), "3@6");
    tool.parse({"--level=5", "--level=6"});
    EXPECT_EQ(tool.show(tool.result->next("dry")), "4@11") << "the walk goes on";
    EXPECT_EQ(next(), "5@13") << "over what was stored meanwhile";

    EXPECT_EQ(tool.show(get("dry", 0, INT_MAX)), "@4");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(7)) << "one cursor for both";
    EXPECT_EQ(next(), "");
}

TEST_F(Queries, TakeNullAsNotFound) {
    EXPECT_TRUE(tool.result->present("level", 0, INT_MAX));
    EXPECT_FALSE(tool.result->present(nullptr, 0, INT_MAX));
    EXPECT_EQ(next(), "");
    EXPECT_EQ(tool.result->get(nullptr, 0, INT_MAX).position, INT_MAX);
    EXPECT_EQ(getLastValue(tool.result, nullptr, 0, INT_MAX).status, statusNotFound);
    EXPECT_EQ(getLastValue(nullptr, "level", 0, INT_MAX).status, statusNotFound);
    EXPECT_EQ(tool.result->getFirstArgument(nullptr), statusException);
    EXPECT_EQ(tool.result->getNextArgument(nullptr), statusException);
}

TEST_F(Queries, TextsOutliveEverythingButTheResult) {
    const Value value = get("level", 0, INT_MAX);
    const char* argument = nullptr;
    tool.result->getFirstArgument(&argument);
    for (int i = 0; i < 1000; ++i) {
        tool.parse({"--level=" + std::to_string(i), "--", std::to_string(i)});
    }
    EXPECT_EQ(get("level", 0, INT_MAX).text, value.text);
    tool.parser->destroy();
    createParser(&tool.parser, 0);

    EXPECT_STREQ(value.text, "1");
    EXPECT_STREQ(argument, "a");
}

// "shared" leads to the first item, yet both store under it.
TEST(Store, FirstOccurrenceReplacesWhatAnotherItemLeftUnderASharedName) {
    Tool tool;
    tool.option("one").synonym("shared");
    tool.option("two").synonym("shared").synonym("shared");
    tool.parse({"--one=a text too long to live inside a string"});
    const char* const text = tool.result->get("shared", 0, INT_MAX).text;
    tool.parse({"--two=b"});
    EXPECT_EQ(tool.values("shared"), "b");
    EXPECT_STREQ(text, "a text too long to live inside a string") << "kept all the same";
    tool.parse({"--one=c", "--two=d", "--shared=e"});
    EXPECT_EQ(tool.values("shared"), "b|c|d|d|e") << "twice under the name given twice";
}

TEST(Store, EndsTheParseOfAParserThatDoesNotKnowItsNames) {
    Tool other;
    other.option("level");
    other.parse({"--level=1"});
    Tool tool;
    EXPECT_EQ(tool->parseStream("", other.result), resultVetoed);
    EXPECT_EQ(tool.error(), "");
}

TEST(Store, WalksInRangesOverWhatANameGivenTwiceHolds) {
    Tool tool;
    tool.option("twice").synonym("twice");
    tool.parse({"--twice=a", "--twice=b,c,d", "--twice=e"});
    EXPECT_EQ(tool.walk("twice"), "a@2 b@4 c@5 d@6 b@4 c@5 d@6 e@8 e@8");
    EXPECT_EQ(tool.walk("twice", 6), "d@6 d@6 e@8 e@8");
}

// The line draws: default, occurrence, value, value, switch, argument.
TEST(SequenceEnd, EndsTheParseAndKeepsWhatWasStored) {
    const int before = IArgumentParser::m_idx;
    const std::pair<int, const char*> ends[] = {
        {0, ""                        },
        {3, "level=7(0)"              },
        {4, "level=1|2(1)"            },
        {6, "level=1|2(1) dry(1) -- a"},
    };
    for (const auto& [left, stored] : ends) {
        SCOPED_TRACE(left);
        IArgumentParser::m_idx = INT_MAX - left;
        Tool tool;
        tool.option("level", vtS32).defaultValue(7);
        tool.option("dry", vtNull);

        const int code = tool.parse({"--level=1,2", "--dry", "--", "a"});

        EXPECT_EQ(code, left < 6 ? resultException : resultOk);
        EXPECT_EQ(tool.error().empty(), code == resultOk);
        EXPECT_EQ(tool.stored(), stored);
        EXPECT_EQ(tool.parse({"--level=1,2"}), resultException);
    }
    IArgumentParser::m_idx = before;
}

}  // namespace
}  // namespace zarn_3_3
