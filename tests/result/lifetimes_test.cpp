// Texts that were handed out stay where they are, whatever is asked behind them.

#include <gtest/gtest.h>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

TEST(TextsOfAResult, OutliveEverythingButTheResult) {
    Tool tool;
    tool.option("level", vtS32);
    tool.parse({"--level=1", "--", "a"});
    const Value value = tool.result->get("level", 0, INT_MAX);
    const char* argument = nullptr;
    tool.result->getFirstArgument(&argument);
    for (int i = 0; i < 1000; ++i) {
        tool.parse({"--level=" + std::to_string(i), "--", std::to_string(i)});
    }
    EXPECT_EQ(tool.result->get("level", 0, INT_MAX).text, value.text);
    tool.parser->destroy();
    createParser(&tool.parser, 0);

    EXPECT_STREQ(value.text, "1");
    EXPECT_STREQ(argument, "a");
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
