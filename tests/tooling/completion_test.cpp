#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "support/failing_new.h"
#include "support/tool.h"
#include "zarn/tooling.h"
#include "zarn/typed.h"

namespace zarn_3_3::completion_test {
namespace {

using testing_support::PlainTool;
using Words = std::vector<std::string>;

struct Asked {
    int code;
    std::string answer;
};

Asked ask(IParser* parser, const std::string& question, const Words& words) {
    std::vector<const char*> argv{"tool", "--zarn-answer", question.c_str(), "--"};
    for (const std::string& word : words) {
        argv.push_back(word.c_str());
    }
    const ToolInfo info{sizeof info, "tool", nullptr, nullptr};
    const char* answer = "";
    const int code =
        answerQuestion(parser, &info, static_cast<int>(argv.size()), argv.data(), &answer);
    return {code, answer};
}

std::string complete(IParser* parser, const std::string& shell, const Words& words) {
    return ask(parser, "complete:1:" + shell + ":" + std::to_string(words.size()) + ":=:@", words)
        .answer;
}

// The candidates between '|'; "files" for the names of files.
std::string candidates(IParser* parser, const Words& words) {
    std::istringstream lines(complete(parser, "zsh", words));
    std::string line;
    std::getline(lines, line);
    std::string found = line == "zarn 1 files" ? "files" : "";
    while (std::getline(lines, line)) {
        found += (found.empty() ? "" : "|") + line.substr(0, line.find('\t'));
    }
    return found;
}

void declareVocabulary(PlainTool& tool) {
    tool->action("create,c", "", vtNull, "");
    tool->option("color", "", vtBool, "").defaultValue(false);
    tool->option("ask,w", "", vtBool, "").defaultValue(true);
    tool->modifier("algorithm,a", "create", "", vtString, "")
        .allowValue("crc32")
        .allowValue("adler32")
        .allowValue("crc")
        .allowDeprecatedValue("crc", "crc32")
        .tokenize(0);
    tool->modifier("ignore,i", "verify", "", vtNull, "");
    tool->action("verify,v", "", vtNull, "");
    tool->action("compare,k", "", vtNull, "");
    tool->allowSimultaneousActions({"create", "verify"});
    tool->option("parts,p", "", vtString, "")
        .allowValue("head")
        .allowValue("body")
        .allowValue("head,body")
        .allowValue("-tail")
        .allowValue("");
    tool->option("level", "", vtS32, "")
        .allowValue(10)
        .allowValue(100)
        .allowValue(20)
        .synonym("color");
    tool->option("secret", "", vtString, "zarn_hidden").allowValue("x1");
    tool->option("=odd", "", vtNull, "");
    tool->action("-dash", "", vtNull, "");
    tool->option("in two", "", vtNull, "");
    tool->addOptionFileOption("", "");
}

struct Row {
    const char* label;
    int flags;
    Words words;
    const char* found;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

const std::string allOptions = "--color|--ask|--no-ask|--parts=|--level=|--option-file=";
const std::string globals = "--create|--verify|--compare|" + allOptions;
const std::string besideCreate = "--verify|--algorithm=|" + allOptions;

const Row rows[] = {
    {"Nothing",                 0,                              {""},                               globals.c_str()                        },
    {"Dashes",                  0,                              {"--"},                             globals.c_str()                        },
    {"LongDash",                0,                              {"\xE2\x80\x94ver"},                "\xE2\x80\x94verify"                   },
    {"ThirdDash",               0,                              {"---"},                            ""                                     },
    {"PlainWord",               0,                              {"ver"},                            ""                                     },
    {"OneDash",                 0,                              {"-com"},                           "-compare"                             },
    {"ModifierBeforeItsAction", 0,                              {"--alg"},                          "--algorithm="                         },
    {"SynonymBesideNames",      0,                              {"-c"},                             "-create|-compare|-color"              },
    {"SynonymAlone",            0,                              {"-k"},                             "-k"                                   },
    {"TypedNoForm",             0,                              {"--no-c"},                         "--no-color"                           },
    {"NoFormOfDefault",         0,                              {"--no-a"},                         "--no-ask"                             },
    {"NoFormBesideSynonym",     0,                              {"--no-"},                          "--no-color|--no-ask"                  },
    {"NoFormOfSynonym",         0,                              {"--no-w"},                         "--no-w"                               },
    {"HiddenName",              0,                              {"--sec"},                          ""                                     },
    {"HiddenValue",             0,                              {"--secret="},                      "--secret=x1"                          },
    {"BesideAction",            0,                              {"--create", "--"},                 besideCreate.c_str()                   },
    {"BesideAbbreviatedAction", 0,                              {"-crea", "--"},                    besideCreate.c_str()                   },
    {"ForeignModifier",         0,                              {"--compare", "--i"},               ""                                     },
    {"ModifierOfEither",        0,                              {"-c", "-v", "--i"},                "--ignore"                             },
    {"NoActionBeside",          0,                              {"--compare", "--c"},               "--color"                              },
    {"AttachedValue",           0,                              {"--alg=c"},                        "--alg=crc32"                          },
    {"AllValues",               0,                              {"--algorithm="},                   "--algorithm=crc32|--algorithm=adler32"},
    {"ValueBehindBlank",        0,                              {"--algorithm  a"},                 "--algorithm  adler32"                 },
    {"NextValue",               0,                              {"--algorithm", "a"},               "adler32"                              },
    {"NextValueWithDash",       0,                              {"--parts", "-"},                   ""                                     },
    {"NextValueBesideDash",     0,                              {"--parts", ""},                    "head|body"                            },
    {"BehindEmptyValue",        0,                              {"--parts=", "b"},                  "body"                                 },
    {"BehindValue",             0,                              {"--parts", "head", "--lev"},       "--level="                             },
    {"ForgottenValue",          0,                              {"--parts", "--lev"},               ""                                     },
    {"BehindForgottenValue",    0,                              {"--parts", "--level=10", "--lev"}, "--level="                             },
    {"List",                    0,                              {"--parts=head,"},                  "--parts=head,body|--parts=head,-tail" },
    {"ListOfNumbers",           0,                              {"--level=10,"},                    "--level=10,100|--level=10,20"         },
    {"Numbers",                 0,                              {"--level=1"},                      "--level=10|--level=100"               },
    {"GivenNumber",             0,                              {"--level=10,1"},                   "--level=10,100"                       },
    {"SwitchValue",             0,                              {"--create="},                      ""                                     },
    {"BooleanValue",            0,                              {"--color=t"},                      ""                                     },
    {"AmbiguousName",           0,                              {"--co=t"},                         ""                                     },
    {"OptionFile",              0,                              {"--option-file="},                 "files"                                },
    {"BehindTerminator",        0,                              {"--", ""},                         ""                                     },
    {"TerminatorIsNoValue",     0,                              {"--parts", "--", "--c"},           ""                                     },
    {"BehindWhatCannotBeTyped", 0,                              {"---dash", "--"},                  globals.c_str()                        },
    {"ValueOfNoName",           0,                              {"--="},                            ""                                     },
    {"ForNobody",               flagPositionalBehindTerminator, {"--", ""},                         ""                                     },
};

class Engine : public testing::TestWithParam<Row> {};

TEST_P(Engine, OffersWhatMayStandThere) {
    PlainTool tool(GetParam().flags);
    declareVocabulary(tool);
    EXPECT_EQ(candidates(tool.parser, GetParam().words), GetParam().found);
}

const auto labelOf = [](const auto& test) { return std::string(test.param.label); };

INSTANTIATE_TEST_SUITE_P(Lines, Engine, testing::ValuesIn(rows), labelOf);

constexpr int rest = flagPositionalTakesRest;
constexpr int behind = flagPositionalBehindTerminator;

const Row positionalRows[] = {
    {"Value",             0,      {"a"},                                         "adler32"      },
    {"Empty",             0,      {""},                                          "crc32|adler32"},
    {"Name",              0,      {"-"},                                         "-number="     },
    {"SecondWord",        0,      {"crc32", "-"},                                "-number="     },
    {"BehindRest",        rest,   {"crc32", "-"},                                "-crc"         },
    {"BehindLogSwitch",   rest,   {"zarnoption=zarnlogenable=1", "-n"},          "-number="     },
    {"LogSwitchAsWord",   rest,   {"crc32", "zarnoption=zarnlogenable=1", "-c"}, "-crc"         },
    {"TerminatorInRest",  rest,   {"crc32", "--", "c"},                          "crc32"        },
    {"BehindTerminator",  behind, {"--", "-"},                                   "-crc"         },
    {"OwnBusinessOfTool", 0,      {"--", ""},                                    ""             },
};

class PlainWords : public testing::TestWithParam<Row> {};

TEST_P(PlainWords, AreValuesOfTheFirstPositionalItem) {
    PlainTool tool(GetParam().flags);
    tool.option("kind").allowValue("crc32").allowValue("adler32").allowValue("-crc").positional();
    tool.option("number", vtS32);
    tool.option("other").positional();
    tool.option("");
    tool.option(",x");
    EXPECT_EQ(candidates(tool.parser, GetParam().words), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(Lines, PlainWords, testing::ValuesIn(positionalRows), labelOf);

TEST(PlainWordsOfTheModernFace, BelongToTheItemsByTheirPlaces) {
    int number = 0;
    std::string mode;
    std::vector<std::string> files;
    Parser parser({"tool"});
    parser.declare({
        positional<int>("number", "").into(number),
        positional("mode", "").allow({"fast", "slow"}).into(mode),
        positional("file", "").into(files),
        option<std::string>("color", "").allow({"never", "auto"}).withoutValue("auto"),
    });
    IParser* const plain = parser.operator->();
    EXPECT_EQ(candidates(plain, {""}), "");
    EXPECT_EQ(candidates(plain, {"1", "f"}), "fast");
    EXPECT_EQ(candidates(plain, {"--nowhere", "1", "f"}), "fast");
    EXPECT_EQ(candidates(plain, {"1", "fast", ""}), "files");
    EXPECT_EQ(candidates(plain, {"1", "fast", "x", ""}), "files");
    EXPECT_EQ(candidates(plain, {"--c"}), "--color");
    EXPECT_EQ(candidates(plain, {"--color=n"}), "--color=never");
    EXPECT_EQ(candidates(plain, {"1", "--color", "f"}), "fast");
}

struct BashRow {
    const char* label;
    Words words;
    const char* inserted;
};

const BashRow bashRows[] = {
    {"BlankBehindName",      {"--compare"},                  "--compare "                   },
    {"NoBlankBehindSign",    {"--lev"},                      "--level="                     },
    {"Break",                {"--say=t"},                    "two\\ words "                 },
    {"EscapedBreak",         {"--at\\=h"},                   "--at=h:80 "                   },
    {"BreakThatStays",       {"--at=m"},                     "m@h "                         },
    {"BehindBreakThatStays", {"--at=m@"},                    "@h "                          },
    {"LastBreak",            {"--at=h:"},                    "80 "                          },
    {"QuotedBreak",          {"'--at=h:8"},                  "--at=h:80"                    },
    {"OpenQuote",            {"--say=\"t"},                  "two words"                    },
    {"OpenSingleQuote",      {"--say", "'t"},                "two words"                    },
    {"UnsayableInQuote",     {"--say", "'d"},                ""                             },
    {"ClosedQuotes",         {"'--say'=\"tw\"o' '"},         "two\\ words "                 },
    {"Backslash",            {"--say=two\\ w"},              "two\\ words "                 },
    {"BackslashAtEnd",       {"--comp\\"},                   "--compare "                   },
    {"BackslashInQuote",     {"\"--s\\ay=t"},                ""                             },
    {"BackslashAtQuotedEnd", {"\"--say=two\\"},              ""                             },
    {"EscapedInQuote",       {"--say", "\"don't \\\"\\$\""}, "don\\'t\\ \\\"\\$\\(x\\)\\\" "},
    {"Special",              {"--say=d"},                    "don\\'t\\ \\\"\\$\\(x\\)\\\" "},
    {"Expansion",            {"--say=$t"},                   ""                             },
    {"ExpansionInQuote",     {"--say=\"$(t"},                ""                             },
    {"QuotedWordBefore",     {"\"--say\"", "t"},             "two\\ words "                 },
};

void PrintTo(const BashRow& row, std::ostream* out) { *out << row.label; }

class Bash : public testing::TestWithParam<BashRow> {};

TEST_P(Bash, IsToldWhatReadlineInserts) {
    PlainTool tool;
    tool.option("compare", vtNull);
    tool.option("level", vtS32);
    tool.option("say").allowValue("two words").allowValue("don't \"$(x)\"").allowValue("$t");
    tool.option("at").allowValue("h:80").allowValue("m@h");
    const std::string inserted = GetParam().inserted;
    EXPECT_EQ(complete(tool.parser, "bash", GetParam().words),
              "zarn 1\n" + (inserted.empty() ? "" : inserted + "\n"));
}

INSTANTIATE_TEST_SUITE_P(Words, Bash, testing::ValuesIn(bashRows), labelOf);

TEST(Completion, ShowsOneLineOfHelpAndNothingThatATerminalObeys) {
    PlainTool tool;
    tool->option("a", "One\tline\x1b\x7f.\nAnother.", vtNull, "");
    tool->option("b", (std::string(199, 'x') + "\xC3\xBC").c_str(), vtNull, "");
    tool->option("c\x1b", "", vtNull, "");
    tool->option("d", std::string(201, '\xBC').c_str(), vtNull, "");
    tool.option("v").allowValue("x\ny").allowValue("z");
    EXPECT_EQ(complete(tool.parser, "fish", {"-"}),
              "zarn 1\n-a\tOne line  .\n-b\t" + std::string(199, 'x') + "\n-d\t\n-v=\t\n");
    EXPECT_EQ(complete(tool.parser, "fish", {"-v="}), "zarn 1\n-v=z\t\n");
}

TEST(Completion, KnowsItsQuestionsAlone) {
    PlainTool tool;
    declareVocabulary(tool);
    EXPECT_EQ(ask(tool.parser, "complete:1:zsh:1:", {"--comp", "behind"}).answer,
              "zarn 1\n--compare\t\n");
    for (const char* question : {"complete:2:zsh:1:",
                                 "complete:1:ksh:1:",
                                 "complete:1:zsh:0:",
                                 "complete:1:zsh:2:",
                                 "complete:1:zsh:1x:",
                                 "complete:1:zsh:-1:",
                                 "complete:1:zsh:1",
                                 "complete:1:zsh",
                                 "complete",
                                 "xcomplete:1:zsh:1:"}) {
        const Asked asked = ask(tool.parser, question, {"--comp"});
        EXPECT_EQ(asked.code, questionAnswered) << question;
        EXPECT_EQ(asked.answer, "") << question;
    }
}

TEST(Completion, AnswersThreeWhenMemoryRunsOut) {
    PlainTool tool;
    declareVocabulary(tool);
    const ToolInfo info{sizeof info, "tool", nullptr, nullptr};
    const char* const argv[] = {"tool", "--zarn-answer", "complete:1:bash:2:=", "--", "-c", "--"};
    bool hasStruck = true;
    for (long count = 1; hasStruck; ++count) {
        const char* answer = nullptr;
        memory.left = count;
        const int code = answerQuestion(tool.parser, &info, 6, argv, &answer);
        memory.left = 0;
        hasStruck = std::exchange(memory.hasStruck, false);
        EXPECT_EQ(code, hasStruck ? toolingFailed : questionAnswered) << count;
        EXPECT_EQ(*answer == '\0', hasStruck) << count;
    }
}

}  // namespace
}  // namespace zarn_3_3::completion_test
