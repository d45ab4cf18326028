// Help texts, whole: people read them, and tools compare them.

#include <gtest/gtest.h>

#include <string>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

TEST(OptionHelp, ListsSectionsInOrderAndItemsByName) {
    Tool tool;
    tool->option("verbose,v,vv", "Says more.", vtNull, "main:Main options");
    tool->option("quiet,q", "Says less.", vtBool, "main:Ignored title");
    tool->option("on", "Is on.", vtBool, "main").defaultValue(true);
    tool->option("off", "Is off.", vtBool, "main").defaultValue(false);
    tool->option("threads", "How many.", vtU32, "more").defaultValue(4u);
    tool->option("level", "How much.", vtString, "more")
        .allowValue("low")
        .allowValue("high")
        .allowDeprecatedValue("mid", "low")
        .defaultValue("low");
    tool->option("address",
                 "Where to, in words that go on until the line is full and wraps.",
                 vtU64,
                 "more");
    tool->option("input", "", vtString, "more");
    tool->option("secret", "Not for all.", vtDouble, "zarn_hidden:Hidden options");
    tool->option("ratio", "Has no default text.", vtDouble, ":No key");
    tool->option("files", "Never shown.", vtString, "more").positional();
    tool->option("quiet", "Refused, but its section stays.", vtNull, "late:Late");

    EXPECT_STREQ(tool->getDescription(false),
                 "main\n"
                 " Main options\n"
                 "\n"
                 "-off | -no-off (default)      Is off.\n"
                 "-on (default) | -no-on        Is on.\n"
                 "-q, -quiet | -no-quiet        Says less.\n"
                 "-vv, -v, -verbose             Says more.\n"
                 "\n"
                 "more\n"
                 "-address=<unsigned 64 bit or hex>\n"
                 "                              Where to, in words that go on until the line is\n"
                 "                              full and wraps.\n"
                 "-level=low | high (low)       How much.\n"
                 "-threads=<unsigned integer> (4)\n"
                 "                              How many.\n"
                 "\n"
                 " No key\n"
                 "\n"
                 "-ratio=<double>               Has no default text.\n"
                 "\n"
                 "late\n"
                 " Late\n"
                 "\n"
                 "\n");
    const std::string hidden =
        "zarn_hidden\n"
        " Hidden options\n"
        "\n"
        "-secret=<double>              Not for all.\n"
        "\n";
    EXPECT_EQ(tool->getDescription(true), hidden);
    EXPECT_EQ(tool->getDescription(nullptr, true), hidden);
    EXPECT_EQ(tool->getDescription("--secret", true),
              "Help for --secret not available.Please use one of the following topics:\n" + hidden);
}

TEST(OptionHelp, ColumnOfThirtyBytesStandsAlone) {
    Tool tool;
    tool->option("name-that-has-just-28-bytes!", "Fits.", vtNull, "");
    tool->option("name-that-has-just-29-bytes!!", "Stands alone.", vtNull, "");
    tool->option("name-that-has-thirty-bytes!!!!", "", vtNull, "");

    EXPECT_STREQ(tool->getDescription(false),
                 "-name-that-has-just-28-bytes! Fits.\n"
                 "-name-that-has-just-29-bytes!!\n"
                 "                              Stands alone.\n"
                 "-name-that-has-thirty-bytes!!!!\n"
                 "\n");
}

class ActionHelp : public testing::Test {
protected:
    ActionHelp() {
        tool->action("run,r",
                     "Runs it, in a line that is not wrapped however long it may become.",
                     vtNull,
                     "a");
        tool->action("inspect-all", "Looks.", vtNull, "a");
        tool->action("repair-everything", "Hidden.", vtNull, "zarn_hidden");
        tool->modifier("fast", "run,inspect-all", "Faster.", vtNull, "m:Modifiers");
        tool->modifier("by-synonym", "r", "Of a synonym.", vtNull, "m");
        tool->option("global", "Goes with all.", vtS32, "m");
    }

    Tool tool;
    const std::string list =
        "    inspect-all   Looks.\n"
        "    run           Runs it, in a line that is not wrapped however long it may become.\n";
    const std::string head = "a\n\nm\n Modifiers\n\n";
};

TEST_F(ActionHelp, ListsTheActionsAlone) {
    EXPECT_EQ(tool->getDescription(false), list);
    EXPECT_EQ(tool->getDescription(nullptr, false), list);
    EXPECT_STREQ(tool->getDescription(true), "    repair-everything   Hidden.\n");
}

TEST_F(ActionHelp, ShowsEverySectionForOneTopic) {
    EXPECT_EQ(tool->getDescription("global", false),
              head + "-global=<integer>             Goes with all.\n\n");
    EXPECT_STREQ(tool->getDescription("r", false),
                 "a\n"
                 "-r, -run                      Runs it, in a line that is not wrapped however\n"
                 "                              long it may become.\n"
                 "\n"
                 "m\n Modifiers\n\n\n");
    EXPECT_STREQ(tool->getDescription("global", true), "zarn_hidden\n\n");
    EXPECT_EQ(tool->getDescription("nosuch", false),
              "Help for nosuch not available.Please use one of the following topics:\n" + list);
}

TEST_F(ActionHelp, ShowsTheModifiersOfAnAction) {
    const std::string fast = "-fast                         Faster.\n";
    EXPECT_EQ(tool->getActionModifiersDescription("run", false),
              head + "-by-synonym                   Of a synonym.\n" + fast + "\n");
    EXPECT_EQ(tool->getActionModifiersDescription("inspect-all", false), head + fast + "\n");
    EXPECT_STREQ(tool->getActionModifiersDescription("repair-everything", false), "");
    EXPECT_STREQ(tool->getActionModifiersDescription(nullptr, false), "");
    EXPECT_EQ(tool->getActionModifiersDescription("nosuch", false),
              "Help for nosuch not available.Please use one of the following topics:\n" + list);
    EXPECT_EQ(tool->getGlobalModifiersDescription(false),
              head + "-global=<integer>             Goes with all.\n\n");
    EXPECT_STREQ(tool->getGlobalModifiersDescription(true), "zarn_hidden\n\n");
}

TEST(ActionList, NamesEachNameOnce) {
    Tool tool;
    tool->action("", "Nameless.", vtNull, "");
    tool->action("", "Nameless.", vtNull, "");

    EXPECT_STREQ(tool->getDescription(false), "       Nameless.\n");
}

TEST(HelpTexts, StayWhereTheyAre) {
    Tool tool;
    const char* const first = tool->getDescription(false);
    tool->option("level", "How much.", vtS32, "");
    const char* const second = tool->getDescription(false);
    for (int i = 0; i < 1000; ++i) {
        tool->getDescription(std::to_string(i).c_str(), false);
    }

    EXPECT_STREQ(first, "");
    EXPECT_STREQ(second, "-level=<integer>              How much.\n\n");
    EXPECT_EQ(tool->getDescription(false), second);
}

}  // namespace
}  // namespace zarn_3_3
