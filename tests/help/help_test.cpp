// Help texts, whole: people read them, and tools compare them.

#include <gtest/gtest.h>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

TEST(OptionHelp, ListsSectionsInOrderAndItemsByName) {
    Tool tool;
    tool->option("verbose,v,vv", "Says more.", vtNull, "main:Main options");
    tool->option("quiet,q", "Says less.", vtBool, "main:Ignored title");
    tool->option("off", "Is off.", vtBool, "main").defaultValue(false);
    IOption& level = tool->option("level", "How much.", vtString, "more");
    level.allowValue("low").allowValue("high").allowDeprecatedValue("mid", "low");
    level.defaultValue("low");
    tool->option("name-that-has-just-28-bytes!", "Fits.", vtNull, "more");
    tool->option("name-that-has-just-29-bytes!!", "Stands above its words.", vtNull, "more");
    tool->option("secret", "Not for all.", vtDouble, "zarn_hidden:Hidden options");
    tool->option("ratio",
                 "Has no default text, but words that go on until the line is full and wraps.",
                 vtDouble,
                 ":No key");
    tool->option("files", "Never shown.", vtString, "more").positional();

    EXPECT_STREQ(tool->getDescription(false), R"(main
 Main options

-off | -no-off (default)      Is off.
-q, -quiet | -no-quiet        Says less.
-vv, -v, -verbose             Says more.

more
-level=low | high (low)       How much.
-name-that-has-just-28-bytes! Fits.
-name-that-has-just-29-bytes!!
                              Stands above its words.

 No key

-ratio=<double>               Has no default text, but words that go on until
                              the line is full and wraps.

)");
    const std::string hidden =
        "zarn_hidden\n Hidden options\n\n-secret=<double>              Not for all.\n\n";
    EXPECT_EQ(tool->getDescription(nullptr, true), hidden);
    EXPECT_EQ(tool->getDescription("--secret", true),
              "Help for --secret not available.Please use one of the following topics:\n" + hidden);
}

TEST(ActionHelp, ListsActionsAndShowsTopics) {
    Tool tool;
    tool->action("run,r", "Runs it, in a line that is not wrapped however long.", vtNull, "a");
    tool->action("repair-everything", "Hidden.", vtNull, "zarn_hidden");
    tool->action("", "Nameless.", vtNull, "a");
    tool->modifier("fast", "run", "Faster.", vtNull, "m:Modifiers");
    tool->option("global", "Goes with all.", vtS32, "m");
    const std::string list =
        "          Nameless.\n    run   Runs it, in a line that is not wrapped however long.\n";
    const std::string global =
        "a\n\nm\n Modifiers\n\n-global=<integer>             Goes with all.\n\n";
    const std::string fast = "-fast                         Faster.\n\n";

    EXPECT_EQ(tool->getDescription(false), list);
    EXPECT_STREQ(tool->getDescription(true), "    repair-everything   Hidden.\n");
    EXPECT_EQ(tool->getGlobalModifiersDescription(false), global);
    EXPECT_STREQ(tool->getDescription("r", false), R"(a
-r, -run                      Runs it, in a line that is not wrapped however
                              long.

m
 Modifiers


)");
    EXPECT_EQ(tool->getActionModifiersDescription("run", false), "a\n\nm\n Modifiers\n\n" + fast);
    EXPECT_STREQ(tool->getActionModifiersDescription(nullptr, false), "");
    EXPECT_EQ(tool->getActionModifiersDescription("nosuch", false),
              "Help for nosuch not available.Please use one of the following topics:\n" + list);
}

TEST(HelpTexts, StayWhereTheyAre) {
    Tool tool;
    tool->option("level", "How much.", vtS32, "");
    const char* const text = tool->getDescription(false);
    for (int i = 0; i < 1000; ++i) {
        tool->getDescription(std::to_string(i).c_str(), false);
    }
    EXPECT_STREQ(text, "-level=<integer>              How much.\n\n");
    EXPECT_EQ(tool->getDescription(false), text);
}

}  // namespace
}  // namespace zarn_3_3
