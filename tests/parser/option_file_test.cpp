// Arguments in files, and what keeps files that name each other from going on for ever.

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
        declare(tool);
    }
    ~OptionFiles() override { std::filesystem::remove_all(folder); }

    static void declare(Tool& declared) {
        declared.option("level", vtS32);
        declared.option("path").tokenize(0);
        EXPECT_TRUE(declared->addOptionFileOption("", ""));
    }
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

TEST_F(OptionFiles, HoldOneArgumentALine) {
    const std::pair<const char*, const char*> files[] = {
        {"# a\n  ;b\n \t\n\n",                          ""                   },
        {"\v\f\r --path=a\t\r\r\n--path=b\r\n",         "a\t|b"              },
        {"--path= x\n--path\ny\n--path z # no comment", " x|y|z # no comment"},
        {"\xEF\xBB\xBF--path=mark\n--path=a\rb\n",      "mark|a\rb"          },
    };
    for (const auto& [text, paths] : files) {
        tool.startNewResult();
        write("f", text);
        EXPECT_EQ(tool.parse({naming("f")}), resultOk) << tool.error();
        EXPECT_EQ(tool.values("path"), paths);
    }
    EXPECT_EQ(tool.parseText("-1"), resultRuleBroken);
    EXPECT_EQ(tool.error(), "Unknown option: ?") << "so it was always read";
}

TEST_F(OptionFiles, AreReadBehindTheLineAndInTheirOrder) {
    write("a", naming("c") + "\n--level=1\n--\nplain a\n--level=0");
    write("b", "--level=2");
    write("c", "--level=3\n" + naming("b"));
    EXPECT_EQ(tool.parse({naming("a") + "," + folder + "b", "--level=9", "--", "plain"}), resultOk);
    EXPECT_EQ(tool.stored(), "level=9|1|2|3|2 -- plain plain a --level=0");
}

TEST_F(OptionFiles, ThatCannotBeReadEndTheParse) {
    tool->action("run", "", vtNull, "");  // whose rule is not looked at
    write("nul", std::string("--level=1\0", 10));
    std::filesystem::create_directory(folder + "directory");
    for (const char* const name : {"nul", "directory", "missing"}) {
        expectRefusal(name, name, "");
    }
}

TEST_F(OptionFiles, AreReadOnlyWhenTheToolSaysSo) {
    Tool other;
    other.option("option-file");
    EXPECT_EQ(other.parse({naming("missing")}), resultOk);
}

TEST_F(OptionFiles, MayBeNamedByADefaultOfTheTool) {
    Tool other(flagUnknownIsError);
    other.option("option-file").defaultValue(folder + "default");
    declare(other);
    EXPECT_EQ(other.parse({"--level=0"}), resultOptionFileUnreadable);
    write("default", "--level=1\n" + naming("next"));
    write("next", "--level=2");
    other.startNewResult();
    EXPECT_EQ(other.parse({"--level=0"}), resultOk) << other.error();
    EXPECT_EQ(other.values("level"), "0|1|2");
}

TEST_F(OptionFiles, MayNotNameThemselvesAgain) {
    const std::string cycle = ": the files name each other in a cycle";
    write("one", naming("two"));
    write("two", "--level=1\n" + naming("one"));
    expectRefusal("one", "one", cycle);
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
