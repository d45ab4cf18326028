// Failures as data, and what was probably meant.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "support/failing_new.h"
#include "support/scratch_folder.h"
#include "support/tool.h"
#include "zarn/typed.h"

namespace zarn_3_3 {
namespace {

using testing_support::PlainTool;
using testing_support::ScratchFolder;

std::string joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) {
        all += (all.empty() ? "" : " ") + text;
    }
    return all;
}

// "kind code place [argument] option=value (candidates) suggestions", what is empty left out. The
// place is an index, or a file and a line.
std::string told(IParser& parser) {
    const Diagnosis found = diagnose(parser);
    std::string text = std::to_string(found.kind) + " " + std::to_string(found.code);
    text += found.index != 0 ? " " + std::to_string(found.index) : "";
    text += found.line != 0 ? " " + found.file + ":" + std::to_string(found.line) : "";
    text += found.argument.empty() ? "" : " [" + found.argument + "]";
    text += found.option.empty() ? "" : " " + found.option;
    text += found.value.empty() ? "" : "=" + found.value;
    text += found.candidates.empty() ? "" : " (" + joined(found.candidates) + ")";
    return text + (found.suggestions.empty() ? "" : " " + joined(found.suggestions));
}

constexpr int toolFlags = flagUnknownIsError | flagPositionalWithoutDash;

void write(const char* file, const std::string& content) { std::ofstream(file) << content; }

void declare(PlainTool& tool) {
    tool.option("level,l", vtS32);
    tool.option("mode").allowValue("fast").allowValue("thorough").allowDeprecatedValue("fats", "");
    tool.option("tone").allowValue("loud").allowValue("lu,od").allowDeprecatedValue("loud",
                                                                                    "thorough");
    tool.option("sizes,size", vtS32).tokenize(',').allowValue(1024).allowValue(2048);
    tool.option("color", vtBool);
    tool.option("cold", vtNull);
    tool.option("text").tokenize(0);
    tool.option("a=b,c d");
    tool->option("secret", "", vtNull, "zarn_hidden");
    tool->addOptionFileOption("", "");
}

struct Row {
    std::vector<std::string> line;
    std::string told;
};

class Listening final : public EventHandler {};

// With and without handlers, for which the arguments are copied.
void check(const Row& row) {
    Listening handler;
    for (const bool isHeard : {false, true}) {
        PlainTool tool(toolFlags);
        declare(tool);
        if (isHeard) {
            tool->addHandler(&handler);
        }
        tool.parse(row.line);
        EXPECT_EQ(told(*tool.parser), row.told) << joined(row.line);
    }
}

TEST(Diagnostics, TellEachFailureOfALine) {
    const Row rows[] = {
        {{"--level=3"},                   "0 0"                                                     },
        {{},                              "0 0"                                                     },
        {{"--level=3", "--colro=x", "a"}, "1 2 2 [--colro=x] --color=x"                             },
        {{"-colour"},                     "1 2 1 [-colour] -color"                                  },
        {{"--no-clor"},                   "1 2 1 [--no-clor] --no-color"                            },
        {{"--colx"},                      "1 2 1 [--colx] --cold"                                   },
        {{"--xold"},                      "1 2 1 [--xold] --cold"                                   },
        {{"--szie", "--level"},           "1 2 1 [--szie] --size"                                   },
        {{"--secrte"},                    "1 2 1 [--secrte]"                                        },
        {{"clor"},                        "1 2 1 [clor]"                                            },
        {{"--a_b"},                       "1 2 1 [--a_b]"                                           },
        {{"--colro=x\ny"},                "1 2 1 [--colro=x\ny]"                                    },
        {{"---colro"},                    "1 2 1 [---colro] --color"                                },
        {{"--=3"},                        "2 2 1 [--=3]"                                            },
        {{"--co"},                        "3 2 1 [--co] (color cold)"                               },
        {{"--cold=yes"},                  "4 2 1 [--cold=yes] cold=yes --cold"                      },
        {{"--color=yes"},                 "5 2 1 [--color=yes] color=yes --color"                   },
        {{"--col=off"},                   "3 2 1 [--col=off] (color cold)"                          },
        {{"--colo=off"},                  "5 2 1 [--colo=off] color=off --no-color"                 },
        {{"--no-col=0"},                  "5 2 1 [--no-col=0] color=0 --color"                      },
        {{"--level="},                    "6 2 1 [--level=] level"                                  },
        {{"--level", "-5"},               "7 2 1 [--level] level=-5 --level=-5"                     },
        {{"--level=", "-5"},              "7 2 1 [--level=] level=-5 --level=-5"                    },
        {{"--level", "--cold"},           "7 2 1 [--level] level=--cold"                            },
        {{"--level", "-x"},               "7 2 1 [--level] level=-x"                                },
        {{"--text", "-x"},                "7 2 1 [--text] text=-x --text=-x"                        },
        {{"--text", "--col"},             "7 2 1 [--text] text=--col"                               },
        {{"--text", "--cold"},            "7 2 1 [--text] text=--cold"                              },
        {{"--sizes=,"},                   "8 2 1 [--sizes=,] sizes=,"                               },
        {{"--level", "5x"},               "9 2 2 [5x] level=5x"                                     },
        {{"--sizes=1024,x"},              "9 2 1 [--sizes=1024,x] sizes=x"                          },
        {{"--mod=fsat"},                  "10 2 1 [--mod=fsat] mode=fsat (fast thorough) --mod=fast"},
        {{"--tone=luod"},                 "10 2 1 [--tone=luod] tone=luod (loud lu,od)"             },
        {{"--mode", "through"},           "10 2 2 [through] mode=through (fast thorough) thorough"  },
        {{"--size=2048,1025,3"},
         "10 2 1 [--size=2048,1025,3] sizes=1025 (1024 2048) --size=2048,1024,3"                    },
        {{"--mode=f"},                    "11 2 1 [--mode=f] mode=f (fast)"                         },
        {{"--option-file=none"},          "13 6 option-file=none"                                   },
    };
    for (const Row& row : rows) {
        check(row);
    }
}

TEST(Diagnostics, TellTheLineOfAFile) {
    const ScratchFolder folder;
    write("inner", "# of another\n\n  --cold\r\n; once more\r\n  --levle=3\r\n");
    write("outer", "--level=1\n\n--option-file=inner\n");
    write("value", "--mode\n\nfastt");
    write("circle", "--option-file=circle\n");
    write("large", std::string(std::size_t{129} << 20, '#'));
    std::vector<std::string> many(1001, "--option-file=empty");
    write("empty", "");
    const Row rows[] = {
        {{"--option-file=outer", "--cold"},              "1 2 inner:5 [--levle=3] --level=3"                   },
        {{"--option-file=value"},                        "10 2 value:3 [fastt] mode=fastt (fast thorough) fast"},
        {{"--option-file=circle"},                       "14 6 option-file=circle"                             },
        {many,                                           "15 6 option-file=empty"                              },
        {{"--option-file=large", "--option-file=large"}, "16 6 option-file=large"                              },
    };
    for (const Row& row : rows) {
        check(row);
    }
}

// Of forty, whichever fails: with what stands between the arguments, and when handlers listen.
TEST(Diagnostics, TellTheLineOfAText) {
    Listening handler;
    for (int line = 1; line <= 40; ++line) {
        for (const bool isHeard : {false, true}) {
            PlainTool tool(toolFlags);
            declare(tool);
            if (isHeard) {
                tool->addHandler(&handler);
            }
            std::string text;
            for (int i = 1; i < line; ++i) {
                text += i % 3 == 0 ? "# comment\r\n" : i % 5 == 0 ? " \n" : "--cold\r\n";
            }
            tool->parseStream((text + "--level\n\nx\n--cold").c_str(), tool.result);
            EXPECT_EQ(told(*tool.parser), "9 2 :" + std::to_string(line + 2) + " [x] level=x");
            tool->parseStream((text + "--level\n-x\n").c_str(), tool.result);
            EXPECT_EQ(told(*tool.parser), "7 2 :" + std::to_string(line) + " [--level] level=-x");
        }
    }
}

TEST(Diagnostics, TellWhatBreaksARule) {
    const auto tellAfter = [](const std::vector<std::string>& line) {
        PlainTool tool(toolFlags);
        tool->action("pack", "", vtNull, "");
        tool->action("list", "", vtNull, "");
        tool->action("debug", "", vtNull, "zarn_hidden");
        tool->modifier("deep", "pack", "", vtNull, "");
        tool.option("quiet", vtNull);
        tool.parse(line);
        return told(*tool.parser);
    };
    EXPECT_EQ(tellAfter({"--pack", "--list"}), "17 2 pack=list");
    EXPECT_EQ(tellAfter({"--list", "--deep"}), "18 2 deep=list (pack)");
    EXPECT_EQ(tellAfter({"--quiet"}), "19 2 (pack list)");
    PlainTool tool(toolFlags);
    tool.option("other");
    tool.parse({"--other=1"});
    PlainTool another(toolFlags);
    another->parseStream("", tool.result);
    EXPECT_EQ(told(*another.parser), "21 1 other");
    tool.parser->parseArgsVector(2, nullptr, tool.result);
    EXPECT_EQ(told(*tool.parser), "20 3");
    tool.parse({});
    EXPECT_EQ(told(*tool.parser), "0 0");
}

// Parses inside the event of another parse, and refuses what that is told of.
class Parsing final : public EventHandler {
public:
    Parsing(PlainTool& tool, const char* inner, bool isWelcome)
        : tool_(tool), inner_(inner), isWelcome_(isWelcome) {}
    bool onValueParse(const char* /*name*/, const Value& value) override {
        if (std::string(value.text) != "0") {
            tool_->parseStream(inner_, tool_.result);
        }
        return isWelcome_;
    }

private:
    PlainTool& tool_;
    const char* inner_;
    bool isWelcome_;
};

TEST(Diagnostics, AreOfTheOuterParse) {
    const struct {
        const char* inner;
        bool isWelcome;
        const char* last;
        const char* told;
    } rows[] = {
        {"--bogus",    true,  "",        "0 0"                       },
        {"--bogus",    false, "",        "12 1 1 [--level=1] level=1"},
        {"--cold",     false, "",        "12 1 1 [--level=1] level=1"},
        {"--cold",     true,  "--levle", "1 2 2 [--levle] --level"   },
        {"--level=\n", true,  "--levle", "1 2 2 [--levle] --level"   },
    };
    for (const auto& row : rows) {
        PlainTool tool(toolFlags);
        declare(tool);
        Parsing handler(tool, row.inner, row.isWelcome);
        tool->addHandler(&handler);
        const char* const argv[] = {"tool", "--level=1", *row.last == '\0' ? nullptr : row.last};
        tool->parseArgsVector(3, argv, tool.result);
        EXPECT_EQ(told(*tool.parser), row.told) << row.inner;
    }
}

TEST(Diagnostics, FillWhatTheCallerHasPlaceFor) {
    PlainTool tool(toolFlags);
    declare(tool);
    tool.parse({"--levle=3"});
    Diagnostic full{};
    full.size = sizeof full;
    ASSERT_EQ(lastDiagnostic(tool.parser, &full), toolingDone);
    const std::string suggestions = full.suggestions;
    Diagnostic part{};
    part.size = offsetof(Diagnostic, suggestions);
    EXPECT_EQ(lastDiagnostic(tool.parser, &part), toolingDone);
    EXPECT_STREQ(part.argument, "--levle=3");
    EXPECT_EQ(part.suggestions, nullptr);
    EXPECT_EQ(part.size, offsetof(Diagnostic, suggestions));
    part.size = 0;
    part.kind = -1;
    EXPECT_EQ(lastDiagnostic(tool.parser, &part), toolingDone);
    EXPECT_EQ(part.kind, -1);
    EXPECT_EQ(lastDiagnostic(nullptr, &part), toolingFailed);
    EXPECT_EQ(lastDiagnostic(tool.parser, nullptr), toolingFailed);
    tool.parse({"--cold"});
    EXPECT_EQ(full.suggestions, suggestions);  // kept
}

TEST(Diagnostics, FailAloneWhenMemoryRunsOut) {
    bool isThrough = false;
    for (long allocation = 1; !isThrough; ++allocation) {
        PlainTool tool(toolFlags);
        declare(tool);
        tool.parse({"--mode=a text longer than a short one", "--level=1"});
        Diagnostic record{};
        record.size = sizeof record;
        memory.left = allocation;
        const int code = lastDiagnostic(tool.parser, &record);
        isThrough = !memory.hasStruck;
        static_cast<Countdown&>(memory) = Countdown();
        ASSERT_EQ(code, isThrough ? toolingDone : toolingFailed);
        ASSERT_EQ(record.kind, isThrough ? valueNotAllowed : noFailure);
    }
}

// A failure that cannot be noted is still a failure.
TEST(Diagnostics, LoseNoMessage) {
    bool isThrough = false;
    int lost = 0;
    for (long allocation = 1; !isThrough; ++allocation) {
        PlainTool tool(toolFlags);
        declare(tool);
        const std::string argument = "--bogus" + std::string(100, 'x');
        const char* const argv[] = {"tool", argument.c_str()};
        memory.left = allocation;
        const int code = tool->parseArgsVector(2, argv, tool.result);
        isThrough = !memory.hasStruck;
        static_cast<Countdown&>(memory) = Countdown();
        const Diagnosis found = diagnose(*tool.parser);
        if (code == resultRuleBroken) {
            EXPECT_EQ(tool->getErrorDesc(), "Unknown option: " + argument);
            lost += found ? 0 : 1;
        } else {
            EXPECT_EQ(found.kind, exceptionCaught);
        }
    }
    EXPECT_GE(lost, 2);
}

// A tool of the modern face, and how a line of it fails.
std::string toldOf(std::initializer_list<const char*> line, int code = resultRuleBroken) {
    Parser parser({"send", "1.0", nullptr});
    parser.declare({option<int>("jobs,j", "").between(1, 64).fromEnvironment("DIAGNOSTIC_JOBS"),
                    option<bool>("color,c", "").fromEnvironment("DIAGNOSTIC_COLOR"),
                    option<std::string>("mode,m", "").allow({"fast", "slow"}).cutAt(','),
                    option("now,n", ""),
                    option("later", ""),
                    option<std::string>("key", ""),
                    option("sign", ""),
                    positional<int>("count", ""),
                    positional("kind", "").allow({"letter", "parcel"}).cutAt(',').required()});
    parser.exactlyOne({"now", "later"});
    parser.needs("sign", {"key"});
    parser.readOptionFiles("");
    parser.accept(unixHabits);
    std::vector<const char*> argv{"send"};
    argv.insert(argv.end(), line.begin(), line.end());
    EXPECT_EQ(parser.parse(static_cast<int>(argv.size()), argv.data()).code(), code);
    return told(*parser.operator->());
}

TEST(Diagnoses, TellWhatTheModernFaceRefuses) {
    EXPECT_EQ(toldOf({"1", "letter", "-n"}, resultOk), "0 0");
    EXPECT_EQ(toldOf({"-n", "-j65"}, resultVetoed), "22 1 2 [-j65] jobs=65");
    EXPECT_EQ(toldOf({"-n", "-j", "65"}, resultVetoed), "22 1 3 [65] jobs=65");
    EXPECT_EQ(toldOf({"-n", "-j", "-5"}, resultVetoed), "22 1 2 [-j -5] jobs=-5");
    EXPECT_EQ(toldOf({"-ncm=fast,slwo"}),
              "10 2 1 [-ncm=fast,slwo] mode=slwo (fast slow) -ncm=fast,slow");
    EXPECT_EQ(toldOf({"-nc", "x"}, resultVetoed), "9 1 2 [x] count=x");
    EXPECT_EQ(toldOf({"-n", "1", "letter,pracel"}, resultVetoed),
              "10 1 3 [letter,pracel] kind=pracel (letter parcel) letter,parcel");
    EXPECT_EQ(toldOf({"--jbos=3", "-n"}), "1 2 1 [--jbos=3] --jobs=3");
    EXPECT_EQ(toldOf({"--cuont=3", "-n"}), "1 2 1 [--cuont=3]");
    EXPECT_EQ(toldOf({"-n", "1", "letter", ""}), "24 2 4 count");
    EXPECT_EQ(toldOf({"-n", "--jobs=", "3"}), "6 2 2 [--jobs=] jobs");
    EXPECT_EQ(toldOf({"-n", "--kind=letter"}), "25 2 2 [--kind=letter] kind");
    EXPECT_EQ(toldOf({"-n", "1"}), "27 2 kind");
    EXPECT_EQ(toldOf({"1", "letter"}), "28 2 (now later)");
    EXPECT_EQ(toldOf({"1", "letter", "--later", "-n"}), "29 2 now=later");
    EXPECT_EQ(toldOf({"1", "letter", "-n", "--sign"}), "30 2 sign=key");
    EXPECT_EQ(toldOf({"--option-file=none"}, resultOptionFileUnreadable), "13 6 option-file=none");
}

TEST(Diagnoses, TellWhatTheEnvironmentHolds) {
    const struct {
        const char* variable;
        const char* value;
        int code;
        const char* told;
    } rows[] = {
        {"DIAGNOSTIC_JOBS",  "65", resultVetoed,     "22 1 [DIAGNOSTIC_JOBS=65] jobs=65"},
        {"DIAGNOSTIC_JOBS",  "x",  resultRuleBroken, "9 2 [DIAGNOSTIC_JOBS=x] jobs=x"   },
        {"DIAGNOSTIC_COLOR",
         "maybe",                  resultRuleBroken,
         "26 2 [DIAGNOSTIC_COLOR=maybe] color=maybe"                                    },
    };
    for (const auto& row : rows) {
        ::setenv(row.variable, row.value, 1);
        EXPECT_EQ(toldOf({"1", "letter", "-n"}, row.code), row.told);
        ::unsetenv(row.variable);
    }
}

TEST(Diagnoses, TellOfACheckOfTheLine) {
    Parser parser;
    parser.check([] { return false; }, "it is too late");
    const char* const argv[] = {"tool"};
    EXPECT_EQ(parser.parse(1, argv).code(), resultRuleBroken);
    EXPECT_EQ(told(*parser.operator->()), "31 2");
}

TEST(Diagnoses, TellOfValuesThatDiffer) {
    Parser parser;
    int way = 0;
    parser.declare({option<int>("level", "").once(),
                    option("up", "").stores(way, 1).once(),
                    option("down", "").stores(way, 2)});
    const char* const argv[] = {"tool", "--level=1", "--level=2"};
    EXPECT_EQ(parser.parse(3, argv).code(), resultRuleBroken);
    EXPECT_EQ(told(*parser.operator->()), "32 2 level=2");
    const char* const both[] = {"tool", "--down", "--up"};
    EXPECT_EQ(parser.parse(3, both).code(), resultRuleBroken);
    EXPECT_EQ(told(*parser.operator->()), "29 2 down=up");
}

TEST(Diagnoses, TellOfOneArgumentTooMany) {
    Parser parser;
    std::string file;
    parser.declare({positional("file", "").into(file), option("help", "").alone()});
    parser.declare({action("pack", "")});
    const char* const argv[] = {"tool", "--pack", "a", "b"};
    EXPECT_EQ(parser.parse(4, argv).code(), resultVetoed);
    EXPECT_EQ(told(*parser.operator->()), "23 1 3 [b]=b");
    const char* const alone[] = {"tool", "--help"};
    EXPECT_EQ(parser.parse(2, alone).code(), resultOk);
    EXPECT_FALSE(diagnose(parser));
}

}  // namespace
}  // namespace zarn_3_3
