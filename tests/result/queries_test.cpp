// What a result stores, and how it is read back.

#include <gtest/gtest.h>

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
        tool.option("never");
        tool.parse({"--level=1,2", "--dry", "--level=3", "--dry", "--", "a"});
        IArgumentParser::drawIndex();
        tool.parse({"-l=4"});
    }

    Value get(const char* name, int from, int to) {
        return tool.result->get(name, tool.number(from), tool.number(to));
    }
    bool present(const char* name, int from, int to) {
        return tool.result->present(name, tool.number(from), tool.number(to));
    }
    std::string next() { return tool.show(tool.result->next(nullptr)); }

    Tool tool;
};

TEST_F(Queries, RangeIsHalfOpenForOccurrencesAndClosedForValues) {
    struct {
        int from;
        int to;
        const char* walk;
        const char* last;
    } const ranges[] = {
        {0,       INT_MAX, "1@2 2@3 3@6 4@11", "4@11"    },
        {-100,    INT_MAX, "1@2 2@3 3@6 4@11", "4@11"    },
        {1,       2,       "1@2",              "1@2"     },
        {1,       6,       "1@2 2@3 3@6",      "3@6"     },
        {1,       5,       "1@2 2@3",          "2@3"     },
        {2,       5,       "",                 "status 1"},
        {3,       6,       "2@3 3@6",          "3@6"     }, // 2 was given before the range
        {5,       6,       "3@6",              "3@6"     },
        {10,      10,      "",                 "status 1"},
        {10,      11,      "4@11",             "4@11"    },
        {9,       3,       "",                 "status 1"},
        {INT_MAX, INT_MAX, "",                 "status 1"},
    };
    for (const auto& [from, to, walk, last] : ranges) {
        EXPECT_EQ(tool.walk("level", from, to), walk) << from << ".." << to;
        EXPECT_EQ(present("l", from, to), *walk != '\0') << from << ".." << to;
        EXPECT_EQ(tool.show(getLastValue(tool.result, "level", tool.number(from), tool.number(to))),
                  last);
    }
}

TEST_F(Queries, GiveTextStatusNumberAndValue) {
    const Value value = get("level", 0, INT_MAX);
    EXPECT_EQ(value.value.type(), vtS32);
    EXPECT_EQ(value.value, variant_t(1));

    for (const char* const name : {"never", "unknown", "leve", "--level", ""}) {
        const Value absent = get(name, 0, INT_MAX);
        EXPECT_EQ(absent.status, statusNotFound);
        EXPECT_EQ(absent.text, nullptr);
        EXPECT_EQ(absent.position, INT_MAX);
        EXPECT_EQ(absent.value.type(), vtNull);
        EXPECT_EQ(next(), "status 1");
        EXPECT_EQ(tool.result->nextPosition(), INT_MAX);
    }
}

TEST_F(Queries, NextGoesOnWithWhatWasSelectedLast) {
    EXPECT_TRUE(present("level", 0, INT_MAX));
    EXPECT_EQ(tool.show(tool.result->next("dry")), "1@2");
    EXPECT_EQ(get("level", 2, 5).status, statusNotFound);
    EXPECT_EQ(next(), "1@2");
    EXPECT_EQ(next(), "2@3");
    EXPECT_EQ(next(), "status 1");
}

TEST_F(Queries, OccurrencesAndValuesAreWalkedApart) {
    EXPECT_EQ(tool.show(get("level", 2, INT_MAX)), "1@2");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(5));
    EXPECT_EQ(next(), "2@3");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(10));
    EXPECT_EQ(tool.result->nextPosition(), INT_MAX);
    EXPECT_EQ(next(), "3@6");
}

TEST_F(Queries, SwitchStepsWhateverTheRange) {
    EXPECT_EQ(tool.walk("dry"), "@4 @7");
    EXPECT_EQ(tool.walk("dry", 4, 5), "@4 @7");
    EXPECT_EQ(tool.walk("dry", 5, 8), "@7");
    EXPECT_EQ(tool.walk("dry", 5, 7), "");
    EXPECT_EQ(get("dry", 0, INT_MAX).text, nullptr);
    EXPECT_EQ(tool.result->nextPosition(), tool.number(7)) << "one cursor for both";
    EXPECT_EQ(next(), "status 1");
}

TEST_F(Queries, TakeNullAsNotFound) {
    const char* text = "unchanged";
    EXPECT_TRUE(present("level", 0, INT_MAX));
    EXPECT_FALSE(tool.result->present(nullptr, 0, INT_MAX));
    EXPECT_EQ(next(), "status 1");
    EXPECT_EQ(tool.result->get(nullptr, 0, INT_MAX).status, statusNotFound);
    EXPECT_EQ(getLastValue(tool.result, nullptr, 0, INT_MAX).status, statusNotFound);
    EXPECT_EQ(getLastValue(nullptr, "level", 0, INT_MAX).status, statusNotFound);
    EXPECT_EQ(tool.result->getNextArgument(&text), statusNotFound);
    EXPECT_EQ(tool.result->getFirstArgument(nullptr), statusException);
    EXPECT_EQ(tool.result->getNextArgument(&text), statusNotFound);
    EXPECT_STREQ(text, "unchanged");
    EXPECT_EQ(tool.result->getFirstArgument(&text), statusFound);
    EXPECT_STREQ(text, "a");
}

TEST_F(Queries, WalkGoesOnOverWhatIsStoredMeanwhile) {
    EXPECT_EQ(tool.show(get("level", 10, INT_MAX)), "4@11");
    EXPECT_EQ(next(), "status 1");
    const char* text = nullptr;
    tool.result->getFirstArgument(&text);
    for (int i = 0; i < 100; ++i) {
        tool.parse({"--level=5", "--", "b"});
    }
    EXPECT_EQ(next(), "5@13");
    EXPECT_EQ(tool.result->nextPosition(), tool.number(10));
    EXPECT_EQ(tool.result->getNextArgument(&text), statusFound);
    EXPECT_STREQ(text, "b");
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
    EXPECT_EQ(tool.walk("level", 5, 6), "3@6");
}

class DefaultQueries : public testing::Test {
protected:
    DefaultQueries() {
        tool.option("level,l", vtS32).defaultValue(7);
        tool.option("blank").defaultValue("");
        tool.option("dry", vtNull).defaultValue(1);
        tool.parse({});
    }

    std::string next() { return tool.show(tool.result->next(nullptr)); }

    Tool tool;
};

TEST_F(DefaultQueries, HaveANumberForEachName) {
    EXPECT_EQ(tool.walk("level"), "7@1");
    EXPECT_EQ(tool.walk("l", 100, 50), "7@2") << "whatever the range";
    EXPECT_EQ(tool.walk("blank"), "");
    EXPECT_EQ(tool.walk("dry"), "");
    tool.parse({});
    EXPECT_EQ(tool.walk("level"), "7@4") << "stamped anew";
}

TEST_F(DefaultQueries, AreDeliveredOnceBehindPresent) {
    EXPECT_TRUE(tool.result->present("level", 5, 5));
    EXPECT_EQ(next(), "7@1");
    EXPECT_EQ(next(), "status 1");
    EXPECT_EQ(tool.result->nextPosition(), INT_MAX);
    EXPECT_FALSE(tool.result->present("blank", 0, INT_MAX));
    EXPECT_EQ(next(), "status 1");
}

TEST_F(DefaultQueries, AreArmedByTheRangeThatPresentLeavesToo) {
    EXPECT_EQ(tool.walk("level", INT_MAX, INT_MAX), "7@1 7@1");
}

TEST_F(DefaultQueries, CountOnlyWhileNothingIsGiven) {
    EXPECT_EQ(tool.parse({"--l=1", "--blank=x", "--dry"}), resultOk);
    EXPECT_EQ(tool.stored(), "level=1 blank=x dry(1)");
}

TEST(Store, AppendsToAllNamesOfAnItem) {
    Tool tool;
    tool.option("level,l", vtS32).synonym("depth");
    tool.parse({"--l=1", "--level=2", "--depth=3"});
    for (const char* const name : {"level", "l", "depth"}) {
        EXPECT_EQ(tool.walk(name), "1@2 2@4 3@6");
    }
}

// "shared" leads to the first item, yet both store under it.
TEST(Store, FirstOccurrenceReplacesWhatAnotherItemLeftUnderASharedName) {
    Tool tool;
    tool.option("one").synonym("shared");
    tool.option("two").synonym("shared");
    tool.parse({"--one=a"});
    tool.parse({"--two=b"});
    EXPECT_EQ(tool.values("shared"), "b");
    tool.parse({"--one=c", "--two=d", "--shared=e"});
    EXPECT_EQ(tool.values("shared"), "b|c|d|e");
    EXPECT_EQ(tool.values("one"), "a|c|e");
}

TEST(Store, KeepsTheTextsOfWhatItReplaces) {
    Tool tool;
    tool.option("one");
    tool.option("two").synonym("one");
    tool.parse({"--one=a text too long to live inside a string"});
    const char* const text = tool.result->get("one", 0, INT_MAX).text;
    tool.parse({"--two=b"});
    EXPECT_EQ(tool.values("one"), "b");
    EXPECT_STREQ(text, "a text too long to live inside a string");
}

TEST(Store, DefaultMakesTheFirstOccurrenceAppend) {
    Tool tool;
    tool.option("one").synonym("shared");
    tool.option("two").synonym("shared").defaultValue("x");
    tool.parse({"--one=a", "--two=b"});
    EXPECT_EQ(tool.values("shared"), "a|b");
}

TEST(Store, NameGivenTwiceDoublesFromTheSecondOccurrenceOn) {
    Tool tool;
    tool.option("twice").synonym("twice");
    tool.parse({"--twice=a", "--twice=b"});
    EXPECT_EQ(tool.values("twice"), "a|b|b");
}

TEST(Store, LetsWhatFailedOutButKeepsItsNumbers) {
    Tool tool;
    tool.option("level", vtS32);
    EXPECT_EQ(tool.parse({"--level=1,2,x"}), resultRuleBroken);
    EXPECT_EQ(tool.walk("level"), "");
    EXPECT_EQ(tool.parse({"--level=4"}), resultOk);
    EXPECT_EQ(tool.walk("level"), "4@5");
}

class SequenceEnd : public testing::TestWithParam<int> {
protected:
    ~SequenceEnd() override { IArgumentParser::m_idx = before; }

    const int before = IArgumentParser::m_idx;
};

// The line draws: default, occurrence, value, value, switch, argument.
TEST_P(SequenceEnd, EndsTheParseAndKeepsWhatWasStored) {
    const char* const stored[] = {"",
                                  "level=7(0)",
                                  "level=7(0)",
                                  "level=7(0)",
                                  "level=1|2(1)",
                                  "level=1|2(1) dry(1)",
                                  "level=1|2(1) dry(1) -- a"};
    const int left = GetParam();
    IArgumentParser::m_idx = INT_MAX - left;
    Tool tool;
    tool.option("level", vtS32).defaultValue(7);
    tool.option("dry", vtNull);

    const int code = tool.parse({"--level=1,2", "--dry", "--", "a"});

    EXPECT_EQ(code, left < 6 ? resultException : resultOk);
    EXPECT_EQ(tool.error().empty(), code == resultOk);
    EXPECT_EQ(tool.stored(), stored[left]);
    EXPECT_EQ(tool.parse({"--level=1,2", "--dry", "--", "a"}), resultException);
    EXPECT_GE(IArgumentParser::m_idx, INT_MAX - left);
}

INSTANTIATE_TEST_SUITE_P(NumbersLeft, SequenceEnd, testing::Range(0, 7));

}  // namespace
}  // namespace zarn_3_3
