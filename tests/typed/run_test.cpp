// What a tool does that calls run.

#include <gmock/gmock.h>

#include <fstream>
#include <utility>

#include "support/failing_new.h"
#include "support/scratch_folder.h"
#include "typed/tool_under_test.h"

namespace zarn_3_3 {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct Ran {
    std::optional<int> code;
    std::string output;
    std::string error;
};

Ran run(Parser& parser, const Line& line) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Ran ran{parser.run(line.argc(), line.argv()), "", ""};
    ran.output = testing::internal::GetCapturedStdout();
    ran.error = testing::internal::GetCapturedStderr();
    return ran;
}

class Run : public testing::Test {
protected:
    Run() {
        unsetenv("COLUMNS");
        declareSettings(parser, settings);
        parser.declare("Actions", {action("pack,p", "Make an archive."), action("list", "Look.")});
        parser.declare({modifier("deep", "pack", "Into folders.")});
    }
    void expectAnswer(const Line& line, const std::string& output) {
        const Ran ran = run(parser, line);
        EXPECT_EQ(ran.code, exitAnswered);
        EXPECT_THAT(ran.output, HasSubstr(output));
        EXPECT_EQ(ran.error + settings.changed(), "");
    }
    void expectFailure(const Line& line, int code, const std::string& error) {
        const Ran ran = run(parser, line);
        EXPECT_EQ(ran.code, code);
        EXPECT_EQ(ran.error, error);
        EXPECT_EQ(ran.output, "");
    }
    Settings settings;
    Parser parser{
        {"sonde", "2.1", "look into archives"}
    };
};

TEST_F(Run, GoesOnWhenThereIsSomethingToDo) {
    const Ran ran = run(parser, {"--pack", "-j=3", "a", nullptr, "--help"});
    EXPECT_EQ(ran.code, std::nullopt);
    EXPECT_EQ(settings.changed(), "jobs=3 file=a ");
    EXPECT_TRUE(parser.result().isGiven("pack"));
    EXPECT_EQ(ran.output + ran.error, "");
}

TEST_F(Run, AnswersWhateverElseIsWrong) {
    const char* const whole =
        "Usage: sonde --pack [options] [--] [FILE...]\n"
        "       sonde --list [options] [--] [FILE...]\n\nlook into archives\n\nOutput:\n"
        "  -j, --jobs INTEGER       How many at a time (default 2; environment:\n"
        "                           TOOL_JOBS).\n";
    expectAnswer({"--help"}, whole);
    expectAnswer({"-h"}, whole);
    expectAnswer({"--jobs=x", "-help"}, whole);
    expectAnswer({"--hel"}, whole);
    expectAnswer({"--help", "--jobs"}, whole);
    expectAnswer({"--help", "a.txt"}, whole);
    expectAnswer(
        {"--help", "jobs"},
        "  -j, --jobs INTEGER   How many at a time (default 2; environment: TOOL_JOBS).\n");
    const char* const ofPack =
        "Usage: sonde --pack [options] [--] [FILE...]\n\nMake an archive.\n\nOutput:\n";
    expectAnswer({"--help=--pack"}, ofPack);
    expectAnswer({"--help", "-p"}, ofPack);
    expectAnswer({"--nonsense", "--help", "p"}, "\nOptions of --pack:\n      --deep  ");
    expectAnswer({"--version", "--help"}, "sonde 2.1\n");
    expectAnswer({"--versio"}, "sonde 2.1\n");
    EXPECT_THAT(parser.help(), StartsWith(whole));
    EXPECT_THAT(parser.help("jobs"), StartsWith("  -j, --jobs INTEGER   How"));
    EXPECT_THAT(parser.helpOfAction("pack"), StartsWith(ofPack));
    EXPECT_THAT(parser.help("nowhere"), StartsWith("Help for nowhere not available."));
}

TEST_F(Run, FitsHelpToTheTerminal) {
    struct Fit {
        internal::TerminalFacts facts;
        unsigned width;
        unsigned flags;
    };
    const Fit fits[] = {
        {{nullptr, nullptr, nullptr, false, 0},       80,  0             },
        {{"40", nullptr, nullptr, false, 100},        40,  0             },
        {{"20", "xterm", nullptr, true, 100},         20,  helpEmphasized},
        {{"19", "xterm", "", true, 100},              100, helpEmphasized},
        {{"", "xterm", "1", true, 200},               120, 0             },
        {{"400", "dumb", nullptr, true, 0},           120, 0             },
        {{"40x", nullptr, nullptr, true, 9},          20,  helpEmphasized},
        {{"99999999999", nullptr, nullptr, false, 0}, 80,  0             },
    };
    for (const Fit& fit : fits) {
        HelpStyle style;
        internal::fitStyle(style, fit.facts);
        EXPECT_EQ(style.width, fit.width) << &fit - fits;
        EXPECT_EQ(style.flags, fit.flags) << &fit - fits;
    }
    setenv("COLUMNS", "40", 1);
    expectAnswer({"--help", "jobs"},
                 "  -j, --jobs INTEGER\n        How many at a time (default 2;\n");
    unsetenv("COLUMNS");
}

TEST_F(Run, TellsWhyItEnds) {
    expectFailure({"--bo\x1b\xc2\x9bg\xc2\xa0us\x7f\xc2"},
                  exitUsage,
                  "sonde: Unknown option: --bo\\x1b\\xc2\\x9bg\xc2\xa0us\\x7f\xc2\n");
    expectFailure(
        {"--jobs=0"},
        exitUsage,
        "sonde: Value '0' is not valid for option 'jobs' in argument '--jobs=0': it must be "
        "between 1 and 64\n");
    expectFailure(
        {"--option-file=nowhere"}, exitUnreadable, "sonde: Error reading option file 'nowhere'\n");
    expectFailure({"--", "--help"}, exitUsage, "sonde: No action defined.\n");
    expectFailure({"--help=no\nwhere"},
                  exitUsage,
                  "sonde: Help for no\\x0awhere not available.Please use one of the following "
                  "topics:\n    list   Look.\n    pack   Make an archive.\n");
    // A check of the line may ask what the run has found so far, and its exceptions are told.
    parser.check(
        [&] { return parser.result().isGiven("pack") || !parser.result().get<double>("no-such"); },
        "it has to be packed");
    expectFailure(
        {"--list"}, exitInternal, "sonde: zarn: 'no-such': no option of this name is declared\n");
    const OnValue failing(parser, [](const char*, const Value&) { throw std::bad_alloc(); });
    expectFailure({"--jobs=3"}, exitInternal, "sonde: std::bad_alloc\n");
}

TEST(RunOf, AToolHasAResult) {
    Parser parser({"tool"});
    EXPECT_THROW(static_cast<void>(parser.result()), std::logic_error);
    parser.declare({option("quiet,q", "")});
    parser.check([&] { return !parser.result().isGiven("quiet"); }, "it is loud");
    EXPECT_EQ(run(parser, {"-q"}).error, "tool: it is loud\n");
    EXPECT_EQ(parser.result().code(), resultRuleBroken);
    EXPECT_EQ(run(parser, {}).code, std::nullopt);
}

TEST(RunOf, AToolSuggestsWhatItsHabitsTake) {
    const struct {
        unsigned habits;
        Line line;
        const char* suggestion;
    } rows[] = {
        {unixHabits,              {"-filf=x"},       "-file=x"           },
        {unixHabits | shortNames, {"-filf=x"},       "--file=x"          },
        {unixHabits | shortNames, {"\u2013filf=x"},  "\u2013\u2013file=x"},
        {unixHabits | shortNames, {"\u2013t", "-x"}, "\u2013t-x"         },
        {unixHabits | shortNames, {"-t", "-x"},      "-t-x"              },
        {shortNames,              {"-t", "-x"},      "-t=-x"             },
        {unixHabits | shortNames, {"--text", "-x"},  "--text=-x"         },
    };
    for (const auto& row : rows) {
        Parser parser;
        parser.accept(row.habits);
        parser.declare({option<std::string>("file", ""), option<std::string>("text,t", "")});
        EXPECT_THAT(run(parser, row.line).error,
                    testing::EndsWith(std::string(" Did you mean '") + row.suggestion + "'?\n"));
    }
}

TEST(RunOf, AToolTellsWhatWasProbablyMeant) {
    Parser parser({"tool"});
    parser->action("list", "", vtNull, "");  // plainly
    parser.declare({action("pack", ""),
                    option<int>("level", ""),
                    option("lever", ""),
                    option("levee", ""),
                    positional("file", "pack", "").named("FILE")});
    parser.readOptionFiles("");
    const testing_support::ScratchFolder folder;
    const std::string path = "typed_run.options";
    std::ofstream(path) << "--pack\n--leve3=2\n";
    const std::string named = "--option-file=" + path;
    const struct {
        Line line;
        std::string error;
    } rows[] = {
        {{"--lisd"},             "Unknown option: --lisd. Did you mean '--list'?"                },
        {{named.c_str()},
         path + ":2: Unknown option: --leve3=2. Did you mean '--level=2', '--lever=2' or "
                "'--levee=2'?"                                                                   },
        {{"--list", "--leveer"}, "Unknown option: --leveer. Did you mean '--lever' or '--levee'?"},
        {{"--list", "a.txt"},    "Action '--list' takes no argument 'FILE'"                      },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(run(parser, row.line).error, "tool: " + row.error + "\n");
    }
}

TEST(RunOf, AToolMayDeclareMoreInAHandler) {
    Parser parser;
    parser.declare({option<std::string>("mode", "").allow({"new", "newer"}).deprecate("old", "new"),
                    option("never", ""),
                    option<int>("jobs", "").between(1, 9)});
    const OnValue declaring(parser, [&](const char*, const Value&) {
        parser->option("late", "", vtString, "");
        return true;
    });
    EXPECT_EQ(run(parser, {"--jobs=3", "--late=x", "--mode=newer"}).code, std::nullopt);
    EXPECT_EQ(parser.result().get<std::string>("mode"), "newer");
    EXPECT_TRUE(parser.result().occurrences({"never"}).empty());
}

TEST(RunOf, AToolLeavesToItWhatItHasItself) {
    bool help = false;
    Parser parser;
    parser.declare({option("help", "Own.").alone().into(help), option<int>("h", "").required()});
    EXPECT_EQ(run(parser, {"--help"}).code, std::nullopt);
    EXPECT_TRUE(help);
    EXPECT_EQ(run(parser, {"--version"}).error, "tool: Unknown option: --version\n");
    EXPECT_THAT(parser.help(),
                StartsWith("Usage: tool -h INTEGER [options]\n\nOptions:\n      --help "));
    Parser nameless;
    nameless.declare({option<int>("h", ""),
                      positional<int>("count", "How many.").required(),
                      positional("rest", "").required()});
    EXPECT_THAT(run(nameless, {"--help"}).output,
                StartsWith("Usage: tool [options] [--] count rest...\n\nArguments:\n  count "));
    const char* const none = nullptr;
    EXPECT_EQ(nameless.run(0, &none), exitUsage);
    EXPECT_EQ(nameless.run(1, &none), exitUsage);
    EXPECT_EQ(nameless.run(2, nullptr), exitInternal);
    nameless.accept(unixHabits);
    EXPECT_STREQ(nameless.parse(2, nullptr).text(), "The argument vector is null");
}

TEST(RunOf, AToolShowsWhatEachActionTakes) {
    Parser parser({"tool"});
    parser.declare({action("list", ""), action("pack", "")});
    parser.declare(
        {positional("file", "pack", "").named("FILE"), modifier("deep", "pack", "").required()});
    EXPECT_THAT(parser.help(),
                StartsWith("Usage: tool --list\n       tool --pack --deep [--] [FILE...]\n\n"));
    parser.declare({action("a", ""), action("b", ""), action("c", ""), action("d", "")});
    EXPECT_THAT(parser.help(), StartsWith("Usage: tool ACTION [options] [--] [FILE...]\n\n"));
}

TEST(RunOf, AToolAnswersQuestionsFirst) {
    Parser parser;
    parser.declare({option("help", "Own.").alone(),
                    positional<int>("count", "How many.").required(),
                    positional("rest", "").required()});
    const Ran described = run(parser, {"--zarn-answer", "describe"});
    EXPECT_EQ(described.code, exitAnswered);
    EXPECT_THAT(described.output, StartsWith("{\n  \"format\": 1,\n  \"name\": \"tool\",\n"));
    EXPECT_THAT(described.output, HasSubstr("\"type\": \"int32\""));
    const Ran newer = run(parser, {"--zarn-answer", "complete:2:fish:1:", "--", "--h"});
    EXPECT_EQ(newer.code, exitAnswered);
    EXPECT_EQ(newer.output + newer.error, "");
    parser.declare({modifier("deep", "pack", "Of an action that is not there.")});
    const Line line{"--zarn-answer", "describe"};
    EXPECT_THROW((void)parser.run(line.argc(), line.argv()), std::logic_error);
}

TEST(RunOf, AToolWithoutMemoryAnswersNothing) {
    Parser parser({"sonde", "2.1", nullptr});
    for (const Line& line : {
             Line{"--zarn-answer", "describe"},
             Line{"--help=nothing"              }
    }) {
        long n = 0;
        for (bool hasStruck = true; hasStruck; ++n) {
            testing::internal::CaptureStdout();
            testing::internal::CaptureStderr();
            memory.left = n + 1;
            const std::optional<int> code = parser.run(line.argc(), line.argv());
            memory.left = 0;
            hasStruck = std::exchange(memory.hasStruck, false);
            const std::string said =
                testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
            EXPECT_EQ(said == "sonde: out of memory\n", hasStruck) << said << n;
            EXPECT_EQ(code == exitInternal, hasStruck) << n;
            EXPECT_THAT(said, testing::EndsWith("\n"));
        }
        EXPECT_GT(n, 10);
    }
}

TEST(RunOf, AToolThatTakesTheRestLeavesItsArgumentsAlone) {
    std::vector<std::string> command;
    Parser parser({"runner", nullptr, nullptr}, usualFlags | flagPositionalTakesRest);
    parser.declare({option<std::string>("user", ""), positional("command", "").into(command)});
    parser.accept(unixHabits);
    EXPECT_EQ(run(parser, {"--user", "me", "list", "--help", "-vj3"}).code, std::nullopt);
    EXPECT_THAT(command, testing::ElementsAre("list", "--help", "-vj3"));
    EXPECT_EQ(run(parser, {"list", ""}).code, exitUsage);
    EXPECT_EQ(run(parser, {"--user", "me", "--help", "list"}).code, exitAnswered);
}

TEST(RunOf, AToolWhoseHelpCannotBeWrittenEnds) {
    Parser parser;
    const Line line{"--help"};
    std::FILE* const before = stdout;
    stdout = std::fopen("/dev/full", "w");
    const auto code = parser.run(line.argc(), line.argv());
    std::fclose(stdout);
    stdout = before;
    EXPECT_EQ(code, exitInternal);
}

}  // namespace
}  // namespace zarn_3_3
