#include "log/zarn_log.h"

#include <gtest/gtest.h>

#include <iostream>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

const std::string logSwitch = "zarnoption=zarnlogenable=1";

// A log that cannot be written never changes a parse.
TEST(ZarnLog, MayMeetAFullDisk) {
    internal::basic_nullbuf<char> fullDisk;
    std::streambuf* const before = std::cout.rdbuf(&fullDisk);
    testing_support::Tool tool(flagUnknownIsError);
    tool.option("name");

    EXPECT_EQ(tool.parse({logSwitch, "--name=a"}), resultOk);
    EXPECT_TRUE(std::cout.bad()) << "the log was never written";
    EXPECT_EQ(tool.parse({logSwitch, "--name=b", "x"}), resultRuleBroken);
    EXPECT_EQ(tool.error(), "Unknown option: x");
    EXPECT_EQ(tool.values("name"), "a|b");

    EXPECT_EQ(tool.parse({"--name=c"}), resultOk);
    EXPECT_NE(&(internal::zarnLog() << "nowhere"), &std::cout);

    std::cout.rdbuf(before);
    std::cout.clear();
}

}  // namespace
}  // namespace zarn_3_3
