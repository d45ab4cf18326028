// Real files that name each other, and the limits of their number and size.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// A new folder for each test.
class OptionFiles : public testing::Test {
protected:
    OptionFiles() {
        std::string made = testing::TempDir() + "zarn_files_XXXXXX";
        folder = std::string(mkdtemp(made.data())) + "/";
        tool.option("level", vtS32);
        EXPECT_TRUE(tool->addOptionFileOption("", ""));
    }
    ~OptionFiles() override { std::filesystem::remove_all(folder); }

    void write(const std::string& name, const std::string& text) {
        std::ofstream(folder + name, std::ios::binary) << text;
    }
    std::string naming(const std::string& name) { return "--option-file=" + folder + name; }

    // Parses into a new result and is told why a file was not read; an empty reason is a good one.
    void expectRefusal(const std::string& first, const std::string& bad, const std::string& why) {
        tool.startNewResult();
        EXPECT_EQ(tool.parse({"--level=5", naming(first)}), resultOptionFileUnreadable);
        EXPECT_EQ(tool.error(), "Error reading option file '" + folder + bad + "'" + why);
        EXPECT_EQ(tool.values("level").substr(0, 1), "5");
    }

    std::string folder;
    Tool tool{flagUnknownIsError};
};

TEST_F(OptionFiles, MayNotNameThemselvesByAnotherName) {
    const std::string cycle = ": the files name each other in a cycle";
    write("linked", naming("link"));
    std::filesystem::create_symlink("linked", folder + "link");
    expectRefusal("linked", "link", cycle);
    write("hard", naming("other"));
    std::filesystem::create_hard_link(folder + "hard", folder + "other");
    expectRefusal("hard", "other", cycle);
}

TEST_F(OptionFiles, AreAThousandAtMost) {
    for (int i = 0; i < 1000; ++i) {
        write(std::to_string(i), naming(std::to_string(i + 1)));
    }
    write("1000", "--level=1");
    EXPECT_EQ(tool.parse({naming("1")}), resultOk) << tool.error();
    EXPECT_EQ(tool.values("level"), "1");
    expectRefusal("0", "1000", ": more than 1000 option files in one parse");
    write("1000", naming("1"));  // named though the limit is reached too
    expectRefusal("1", "1", ": the files name each other in a cycle");
}

TEST_F(OptionFiles, HaveALimitInSum) {
    write("quarter", std::string(64 << 20, '#'));
    const std::string quarter = naming("quarter");
    EXPECT_EQ(tool.parse({quarter, quarter, quarter, quarter}), resultOk);
    write("four", quarter + "\n" + quarter + "\n" + quarter + "\n" + quarter);
    expectRefusal("four", "quarter", ": more than 256 MiB of option files in one parse");
}

}  // namespace
}  // namespace zarn_3_3
