// Arguments in files, and what keeps files that name each other from going on for ever.

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "log/zarn_log.h"
#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

constexpr const char* logSwitch = "zarnoption=zarnlogenable=1";

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
    std::string unreadable(const std::string& name, const std::string& reason = "") {
        return "Error reading option file '" + folder + name + "'" + reason;
    }
    static std::string cycle() { return ": the files name each other in a cycle"; }

    std::string folder;
    Tool tool{flagUnknownIsError};
};

TEST_F(OptionFiles, HoldOneArgumentALine) {
    const std::pair<const char*, const char*> files[] = {
        {"",                                            ""                   },
        {"# a\n  ;b\n \t\n\n",                          ""                   },
        {"--path=a b ",                                 "a b "               },
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
    tool.startNewResult();
    EXPECT_EQ(tool.parseText(files[3].first), resultOk);
    EXPECT_EQ(tool.values("path"), files[3].second);
}

TEST_F(OptionFiles, MinusOneReadsAsAQuestionMark) {
    write("f", "-1");
    EXPECT_EQ(tool.parse({naming("f")}), resultRuleBroken);
    EXPECT_EQ(tool.error(), "Unknown option: ?");
    EXPECT_EQ(tool.parseText("-1"), resultRuleBroken);
    EXPECT_EQ(tool.error(), "Unknown option: ?");
    EXPECT_EQ(tool.parseText("-1\n"), resultRuleBroken);
    EXPECT_EQ(tool.error(), "Unknown option: -1");
}

TEST_F(OptionFiles, AreReadBehindTheLineAndInTheirOrder) {
    write("a", naming("c") + "\n--level=1\n--\nplain a\n--level=0");
    write("b", "--level=2");
    write("c", "--level=3");
    EXPECT_EQ(tool.parse({naming("a") + "," + folder + "b", "--level=9", "--", "plain"}), resultOk);
    EXPECT_EQ(tool.values("level"), "9|1|2|3");
    EXPECT_EQ(tool.stored(), "level=9|1|2|3 -- plain plain a --level=0");
}

TEST_F(OptionFiles, KeepWhatWasReadBeforeAFailure) {
    tool->action("run", "", vtNull, "");
    write("a", "--level=1");
    write("bad", "--level=2\n--level=x");
    EXPECT_EQ(tool.parse({naming("a"), naming("bad"), naming("a")}), resultRuleBroken);
    EXPECT_EQ(tool.error(),
              "Value validation problem in argument '--level=x': Option 'level' can not parse 'x' "
              "value, requires a type 'integer' here.");
    EXPECT_EQ(tool.values("level"), "1|2");
}

TEST_F(OptionFiles, ThatCannotBeReadEndTheParse) {
    tool->action("run", "", vtNull, "");  // whose rule is not looked at
    write("nul", std::string("--level=1\0", 10));
    std::filesystem::create_directory(folder + "directory");
    std::filesystem::create_symlink("nowhere", folder + "broken");
    const std::string tooLong(5000, 'x');
    for (const char* const name : {"nul", "directory", "broken", "missing", tooLong.c_str()}) {
        EXPECT_EQ(tool.parse({"--level=5", naming(name)}), resultOptionFileUnreadable);
        EXPECT_EQ(tool.error(), unreadable(name));
        EXPECT_EQ(tool.values("level"), "5");
        tool.startNewResult();
    }
}

TEST_F(OptionFiles, AreReadOnlyWhenTheToolSaysSo) {
    Tool other;
    other.option("option-file");
    EXPECT_EQ(other.parse({naming("missing")}), resultOk);
    EXPECT_TRUE(other->addOptionFileOption("", "")) << "refused, but it counts";
    EXPECT_EQ(other.parse({}), resultOk) << "too short to come that far";
    EXPECT_EQ(other.parseText(""), resultOptionFileUnreadable);
}

TEST_F(OptionFiles, MayNotNameThemselvesAgain) {
    write("self", naming("self"));
    write("one", naming("two"));
    write("two", "--level=1\n" + naming("one"));
    write("spelled", "--option-file=" + folder + ".//spelled");
    write("linked", naming("link"));
    std::filesystem::create_symlink("linked", folder + "link");
    write("hard", naming("other"));
    std::filesystem::create_hard_link(folder + "hard", folder + "other");
    const std::pair<const char*, const char*> cycles[] = {
        {"self",    "self"      },
        {"one",     "one"       },
        {"spelled", ".//spelled"},
        {"linked",  "link"      },
        {"hard",    "other"     },
    };
    for (const auto& [first, again] : cycles) {
        EXPECT_EQ(tool.parse({naming(first)}), resultOptionFileUnreadable);
        EXPECT_EQ(tool.error(), unreadable(again, cycle()));
        tool.startNewResult();
    }
}

TEST_F(OptionFiles, MayBeNamedSideBySide) {
    write("leaf", "--level=1");
    write("branch", naming("leaf") + "\n" + naming("leaf"));
    EXPECT_EQ(tool.parse({naming("leaf"), naming("branch"), naming("leaf")}), resultOk);
    EXPECT_EQ(tool.values("level"), "1|1|1|1");
}

TEST_F(OptionFiles, AreWalkedAgainByASecondParse) {
    write("a", naming("b"));
    write("b", "--level=1");
    EXPECT_EQ(tool.parse({naming("a")}), resultOk);
    EXPECT_EQ(tool.parse({"--level=2"}), resultOk);
    // a, b, then a again with a second b behind it
    EXPECT_EQ(tool.values("level"), "1|2|1|1");
}

TEST_F(OptionFiles, AreNamedByADefaultToo) {
    write("default", "--level=1\n" + naming("next"));
    write("next", "--level=2");
    write("circle", naming("default"));
    Tool own;
    own.option("option-file").defaultValue(folder + "default");
    declare(own);
    EXPECT_EQ(own.parse({"-q"}), resultOk);
    EXPECT_EQ(own.stored(), "option-file=" + folder + "next level=1|2");

    write("next", naming("circle"));
    own.startNewResult();
    EXPECT_EQ(own.parse({"-q"}), resultOptionFileUnreadable);
    EXPECT_EQ(own.error(), unreadable("default", cycle()));

    write("next", "--level=3");
    own.startNewResult();
    EXPECT_EQ(own.parse({naming("next")}), resultOk);
    EXPECT_EQ(own.values("level"), "3");
}

TEST_F(OptionFiles, AreAThousandAtMost) {
    for (int i = 0; i < 1000; ++i) {
        write(std::to_string(i), naming(std::to_string(i + 1)));
    }
    write("1000", "--level=1");
    EXPECT_EQ(tool.parse({naming("1")}), resultOk) << tool.error();
    EXPECT_EQ(tool.values("level"), "1");

    tool.startNewResult();
    EXPECT_EQ(tool.parse({naming("0")}), resultOptionFileUnreadable);
    EXPECT_EQ(tool.error(), unreadable("1000", ": more than 1000 option files in one parse"));

    write("1000", naming("1"));
    tool.startNewResult();
    EXPECT_EQ(tool.parse({naming("1")}), resultOptionFileUnreadable);
    EXPECT_EQ(tool.error(), unreadable("1", cycle())) << "named though the limit is reached too";
}

TEST_F(OptionFiles, ThatDoubleAtEachStepAreStopped) {
    for (int i = 0; i < 20; ++i) {
        const std::string next = naming(std::to_string(i + 1));
        write(std::to_string(i), next + "\n" + next);
    }
    write("20", "");
    EXPECT_EQ(tool.parse({naming("0")}), resultOptionFileUnreadable);
    EXPECT_THAT(tool.error(), testing::EndsWith(": more than 1000 option files in one parse"));
}

TEST_F(OptionFiles, HaveALimitInSum) {
    write("quarter", std::string(64 << 20, '#'));
    write("byte", "#");
    const std::string quarter = naming("quarter");
    EXPECT_EQ(tool.parse({quarter, quarter, quarter, quarter}), resultOk);
    EXPECT_EQ(tool.parse({naming("byte")}), resultOptionFileUnreadable);
    EXPECT_EQ(tool.error(), unreadable("byte", ": more than 256 MiB of option files in one parse"));
}

TEST_F(OptionFiles, WithACommaInTheirPathNeedUncutValues) {
    write("a,b", "--level=1");
    EXPECT_EQ(tool.parse({naming("a,b")}), resultOptionFileUnreadable);
    EXPECT_EQ(tool.error(), unreadable("a"));
    Tool whole(flagValuesStayWhole);
    declare(whole);
    EXPECT_EQ(whole.parse({naming("a,b")}), resultOk);
    EXPECT_EQ(whole.values("level"), "1");
}

TEST_F(OptionFiles, SwitchTheLogEachForItself) {
    write("on", std::string(logSwitch) + "\n--level=1");
    write("off", "--level=2");
    write("second", "--level=3\n" + std::string(logSwitch));
    const CapturedStream log(std::cout);
    EXPECT_EQ(tool.parse({naming("on"), naming("off")}), resultOk);
    EXPECT_THAT(log.text(), testing::HasSubstr("value: '1'"));
    EXPECT_THAT(log.text(), testing::Not(testing::HasSubstr("value: '2'")));
    EXPECT_FALSE(internal::zarnLogEnabled);
    tool.startNewResult();
    EXPECT_EQ(tool.parse({logSwitch, naming("off"), naming("on")}), resultOk);
    EXPECT_TRUE(internal::zarnLogEnabled);
    tool.startNewResult();
    EXPECT_EQ(tool.parse({naming("second")}), resultRuleBroken);
    EXPECT_EQ(tool.error(), std::string("Unknown option: ") + logSwitch);
}

}  // namespace
}  // namespace zarn_3_3
