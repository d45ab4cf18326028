#include "log/zarn_log.h"

#include <gtest/gtest.h>

#include <iostream>
#include <string>

#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

const std::string logSwitch = "zarnoption=zarnlogenable=1";

TEST(SwitchLog, TakesTheExactTextAlone) {
    for (const std::string& text : {std::string(), logSwitch + " ", "-" + logSwitch}) {
        internal::zarnLogEnabled = true;
        EXPECT_FALSE(internal::switchLog(text)) << text;
        EXPECT_FALSE(internal::zarnLogEnabled) << text;
    }
    EXPECT_TRUE(internal::switchLog(logSwitch));
    EXPECT_TRUE(internal::zarnLogEnabled);
    EXPECT_EQ(&internal::zarnLog(), &std::cout);
    internal::switchLogOff();
    EXPECT_FALSE(internal::zarnLogEnabled);
}

TEST(ZarnLog, SwallowsEverythingWhileOff) {
    const CapturedStream out(std::cout);
    internal::zarnLog() << "quietly" << 1 << std::endl;
    internal::writeTraceLine({"again"});
    EXPECT_EQ(out.text(), "");
}

// A standard output that takes nothing, as on a full disk.
class FullDisk : private std::streambuf {
public:
    FullDisk() : before(std::cout.rdbuf(this)) {}
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() override {
        std::cout.exceptions(std::ios::goodbit);
        std::cout.rdbuf(before);
    }

private:
    std::streambuf* before;
};

TEST(ZarnLog, NeverChangesAParseWhenItCannotBeWritten) {
    const FullDisk disk;
    Tool tool(flagUnknownIsError);
    tool.option("name");

    EXPECT_EQ(tool.parse({logSwitch, "--name=a"}), resultOk);
    EXPECT_TRUE(std::cout.bad()) << "the log was never written";
    EXPECT_EQ(tool.parse({logSwitch, "--name=b", "x"}), resultRuleBroken);

    EXPECT_EQ(tool.error(), "Unknown option: x");
    EXPECT_EQ(tool.values("name"), "a|b");
}

// A tool that asks for exceptions of its streams gets them, as the code that they stand for.
TEST(ZarnLog, ReportsTheExceptionsThatAToolAskedFor) {
    const FullDisk disk;
    std::cout.exceptions(std::ios::badbit);
    Tool tool;
    tool.option("name");

    EXPECT_EQ(tool.parse({logSwitch, "--name=a"}), resultException);
    EXPECT_EQ(tool.parse({"--name=b"}), resultOk);

    EXPECT_EQ(tool.values("name"), "b");
}

}  // namespace
}  // namespace zarn_3_3
