// What tools of the modern face make of command lines.

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "support/failing_new.h"
#include "support/scratch_folder.h"
#include "typed/tool_under_test.h"

namespace zarn_3_3 {
namespace {

struct Row {
    Line line;
    std::string expected;  // what has changed, or the message
};

std::string outcomeOf(Parser& parser, const Settings& settings, const Line& line) {
    const Result result = parser.parse(line.argc(), line.argv());
    return (result ? "" : std::string(result.text()) + "|") + settings.changed();
}

void expectOutcomes(std::initializer_list<Row> rows,
                    unsigned habits = 0,
                    void (*addTo)(Parser&) = nullptr) {
    for (const Row& row : rows) {
        Settings settings;
        Parser parser;
        declareSettings(parser, settings);
        parser.accept(habits);
        if (addTo != nullptr) {
            addTo(parser);
        }
        EXPECT_EQ(outcomeOf(parser, settings, row.line), row.expected);
    }
}

// A file of the test, and a variable of the environment, while they live.
class OptionFile {
public:
    explicit OptionFile(const char* lines) { std::ofstream(name()) << lines; }
    static const char* name() { return "typed_test.options"; }

private:
    testing_support::ScratchFolder folder_;
};

class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) { setenv(name, value, 1); }
    ~Variable() { unsetenv(name_); }

private:
    const char* name_;
};

TEST(Variables, TakeTheValuesOfAParseThatWentWell) {
    expectOutcomes({
        {{},                                                                   ""                                                         },
        {{"-j=3", "-vv", "--no-color", "-q"},                                  "Unknown option: -vv|"                                     },
        {{"--point=3:4", "-vv"},                                               "Unknown option: -vv|"                                     },
        {{"-j=3", "-v", "-v", "--no-color", "-q"},                             "jobs=3 color=0 quiet=1 verbosity=2 "                      },
        {{"--no-color", "--color", "-j=3", "--jobs=4"},                        "jobs=4 "                                                  },
        {{"--ratio=0.5", "--mode=th", "--target=/tmp/x", "-t=1.5s", "-s=64K"},
         "size=65536 ratio=0.5 mode=thorough timeout=1500 target=/tmp/x "                                                                 },
        {{"--point=3:4", "a,b", "--number=1,2", "--number=3", "c"},
         "point=3:4 number=1 number=2 number=3 file=a,b file=c "                                                                          },
        {{"--former=slow"},                                                    "former=thorough "                                         },
        {{"--level=-4"},
         "Value '-4' is not valid for option 'level' in argument '--level=-4': it must be between "
         "-3 and 32767|"                                                                                                                  },
        {{"--level=32768"},
         "Value '32768' is not valid for option 'level' in argument '--level=32768': it must be "
         "between -3 and 32767|"                                                                                                          },
        {{"--size=1025K"},
         "Value '1025K' is not valid for option 'size' in argument '--size=1025K': it must be at "
         "most 1M|"                                                                                                                       },
        {{"--color", "--jobs=65"},
         "Value '65' is not valid for option 'jobs' in argument '--jobs=65': it must be between 1 "
         "and 64|"                                                                                                                        },
        {{"--jobs=13"},
         "Value '13' is not valid for option 'jobs' in argument '--jobs=13': it must be a lucky "
         "number|"                                                                                                                        },
        {{"--jobs=99999999999"},
         "Value validation problem in argument '--jobs=99999999999': Option 'jobs' can not parse "
         "'99999999999' value, requires a type 'integer' here: it must be between 1 and 64|"                                              },
        {{"--jobs=5x"},
         "Value validation problem in argument '--jobs=5x': Option 'jobs' can not parse '5x' "
         "value, requires a type 'integer' here.|"                                                                                        },
        {{"--jobs=x"},
         "Value validation problem in argument '--jobs=x': Option 'jobs' can not parse 'x' value, "
         "requires a type 'integer' here.|"                                                                                               },
        {{"--point=1:2;3"},
         "Value '1:2;3' is not valid for option 'point' in argument '--point=1:2;3': it must be "
         "two numbers, as in 3:4|"                                                                                                        },
        {{"--x': Option 'jobs' can not parse '5' v"},
         "Unknown option: --x': Option 'jobs' can not parse '5' v|"                                                                       },
        {{"--jobs=9x': Option 'level' can not parse '99999"},
         "Value validation problem in argument '--jobs=9x': Option 'level' can not parse '99999': "
         "Option 'jobs' can not parse '9x': Option 'level' can not parse '99999' value, requires a "
         "type 'integer' here.|"                                                                                                          },
        {{"--jobs=", "3"},                                                     "Option 'jobs' requires a value in argument: '--jobs='|"   },
        {{"--jo ", "3"},                                                       "Option 'jobs' requires a value in argument: '--jo '|"     },
        {{"--quiet=", "a"},                                                    "quiet=1 file=a "                                          },
        {{"a", ""},                                                            "Argument 'FILE' is empty|"                                },
        {{"--target", ""},                                                     "Option 'target' requires a value in argument: '--target'|"},
        {{"a", "--", ""},                                                      "Argument 'FILE' is empty|"                                },
        {{"a", "--", "-b"},                                                    "file=a file=-b "                                          },
    });
}

TEST(Variables, OfTheCommandLineTheLastCountsThenFilesThenTheEnvironment) {
    const OptionFile file("--jobs=5\n--jobs=6\n--number=7\nlisted");
    const Variable jobs("TOOL_JOBS", "9");
    const Variable color("TOOL_COLOR", "off");
    expectOutcomes({
        {{"--option-file=typed_test.options", "-j=3", "-j=4", "--number=1", "--color"},
         "jobs=4 number=1 number=7 file=listed "                                                                              },
        {{"--option-file=typed_test.options"},                                          "jobs=6 color=0 number=7 file=listed "},
        {{"-q"},                                                                        "jobs=9 color=0 quiet=1 "             },
    });
    const Variable wrong("TOOL_JOBS", "65");
    expectOutcomes({
        {{"-q"},
         "Value '65' is not valid for option 'jobs' in argument 'TOOL_JOBS=65': it must "
         "be between 1 and 64|"}
    });
    const Variable none("TOOL_JOBS", "");
    const Variable yes("TOOL_COLOR", "yes");
    expectOutcomes({
        {{"-q"}, "quiet=1 "}
    });
    const Variable perhaps("TOOL_COLOR", "perhaps");
    expectOutcomes({
        {{"-q"},
         "Value validation problem in argument 'TOOL_COLOR=perhaps': it must be 1, true, "
         "yes, on, 0, false, no or off|"}
    });
}

TEST(Variables, KnowWhereTheirValuesComeFrom) {
    const OptionFile file("--jobs=5\n-v");
    const Variable color("TOOL_COLOR", "1");
    Settings settings;
    Parser parser;
    declareSettings(parser, settings);
    const Line line{"--option-file=typed_test.options", "--size=5", "--size=6", "a", "b"};
    const Result result = parser.parse(line.argc(), line.argv());
    EXPECT_EQ(result.origin("j"), Origin::optionFile);
    EXPECT_EQ(result.origin("v"), Origin::optionFile);
    EXPECT_EQ(result.origin("size"), Origin::commandLine);
    EXPECT_EQ(result.origin("color"), Origin::environment);
    EXPECT_EQ(result.origin("timeout"), Origin::byDefault);
    EXPECT_EQ(result.origin("ratio"), Origin::absent);
    EXPECT_THROW(static_cast<void>(result.origin("no-color")), std::logic_error);
    EXPECT_EQ(result.get<Bytes>("s")->count, 6u);
    EXPECT_EQ(result.get<std::chrono::milliseconds>("timeout"), std::chrono::milliseconds(1000));
    EXPECT_EQ(result.get<bool>("color"), true);
    EXPECT_THAT(result.values<std::string>("file"), testing::ElementsAre("a", "b"));
    const Result more = parser.parseStream("--size=7\nc", parser.parse(line.argc(), line.argv()));
    EXPECT_THAT(more.values<std::string>("file"), testing::ElementsAre("a", "b", "c"));
    EXPECT_EQ(settings.size, 7u);
}

TEST(Habits, AreTakenWhereNoNameSaysOtherwise) {
    expectOutcomes(
        {
            {{"-qvj3", "a"},                                            "jobs=3 quiet=1 verbosity=1 file=a "},
            {{"-vvj", "4", "-"},                                        "jobs=4 verbosity=2 file=- "        },
            {{"-qj=5"},                                                 "jobs=5 quiet=1 "                   },
            {{"-s10K", "-l", "-2", "--ratio", "-.5", "--number", "-3"},
             "level=-2 size=10240 ratio=-0.5 number=-3 "                                                    },
            {{"-q", nullptr, "--nowhere"},                              "quiet=1 "                          },
            {{"--target", "-"},                                         "target=- "                         },
            {{"--target=", "-"},                                        "target=- "                         },
            {{"-qu"},                                                   "quiet=1 "                          },
            {{"-qz"},                                                   "Unknown option: -qz|"              },
            {{"-5"},                                                    "Unknown option: -5|"               },
            {{"--target", "-5"},
             "Option 'target' received value from the next argument: '-5', but it seems to be an "
             "option. Use '-option=value' declaration form or make sure that value is not missed|"          },
            {{"-vj0"},
             "Value '0' is not valid for option 'jobs' in argument '-vj0': it must be between 1 "
             "and 64|"                                                                                      },
            {{"-ql", "-4"},
             "Value '-4' is not valid for option 'level' in argument '-ql -4': it must be "
             "between -3 and 32767|"                                                                        },
            {{"--", "-qv", "-"},                                        "file=-qv file=- "                  },
    },
        unixHabits);
    expectOutcomes(
        {
            {{"-qv"}, "Unknown option: -qv|"},
            {{"-j3"}, "jobs=3 "             }
    },
        gluedValues);
    expectOutcomes(
        {
            {{"-qj3"}, "Unknown option: -qj3|"},
            {{"-qv"},  "quiet=1 verbosity=1 " }
    },
        bundles);
    expectOutcomes(
        {
            {{"-"}, "Unknown option: -|"}
    },
        negativeNumbers);
}

TEST(Rules, AreAskedBehindTheParse) {
    const auto declare = [](Parser& parser) {
        parser.declare(
            {option<int>("must", "").required(),
             option("about", "").alone(),
             action("pack,p", ""),
             action("list", ""),
             modifier("deep", "pack,list", "").required(),
             modifier<int>("width", "pack", "").between(1, 2).fromEnvironment("TOOL_WIDTH"),
             option<int>("left", "").byDefault(1),
             option<int>("right", "")});
        parser.exactlyOne({"quiet", "verbose"});
        parser.atMostOne({"size", "level", "file"});
        parser.together({"left", "right"});
        parser.needs("pack", {"file", "ratio"});
    };
    const Variable width("TOOL_WIDTH", "2");
    expectOutcomes(
        {
            {{"--list", "--deep", "-q"},                             "Option '--must' is required|"              },
            {{"--list", "-q", "--must=1"},                           "Action '--list' requires option '--deep'|" },
            {{"--list", "--deep", "--must=1"},                       "One of '--quiet', '--verbose' is required|"},
            {{"--list", "--deep", "--must=1", "-v", "-q"},
             "Option '--quiet' does not go with option '--verbose'|"                                             },
            {{"--list", "--deep", "--must=1", "-v", "-s=1", "-l=1"},
             "Option '--size' does not go with option '--level'|"                                                },
            {{"--list", "--deep", "--must=1", "-v", "-s=1", "a"},
             "Option '--size' does not go with argument 'FILE'|"                                                 },
            {{"--list", "--deep", "--must=1", "-v", "--right=1"},
             "Option '--right' requires option '--left'|"                                                        },
            {{"-p", "--deep", "--must=1", "-v", "--ratio=1"},
             "Action '--pack' requires argument 'FILE'|"                                                         },
            {{"-p", "--deep", "--must=1", "-v", "--ratio=1", "a"},   "verbosity=1 ratio=1 file=a "               },
            {{"--list", "--deep", "--must=1", "-v", "a"},            "verbosity=1 file=a "                       },
            {{"-s=1", "a"},                                          "No action defined.|"                       },
            {{"--list", "--deep", "-s=1"},                           "Option '--must' is required|"              },
            {{"--about", "-v"},                                      "verbosity=1 "                              },
    },
        0,
        declare);
}

struct Positionals {
    explicit Positionals(int flags = usualFlags) : parser({}, flags) {
        parser.declare({positional<int>("count", "").between(1, 9).required().into(count),
                        positional("name", "").allow({"left", "right"}).into(name),
                        positional("rest", "").named("REST").into(rest)});
    }
    std::string parse(const Line& line) {
        const Result result = parser.parse(line.argc(), line.argv());
        std::string all = result ? "" : result.text();
        for (const auto& file : result.values<std::string>("rest")) {
            all += file + ' ';
        }
        return std::to_string(count) + ' ' + name + ' ' + all;
    }
    int count = 0;
    std::string name;
    std::vector<std::string> rest;
    Parser parser;
};

TEST(PositionalItems, ShareTheArgumentsInOrder) {
    const Row rows[] = {
        {{"3", "le", "a", "b"},            "3 left a b "                                                  },
        {{"3"},                            "3  "                                                          },
        {{"--count=3", "right"},           "0  Argument \'count\' is given by its place, without its name"},
        {{"3", "--na=right", "left", "a"},
         "0  Argument \'name\' is given by its place, without its name"                                   },
        {{},                               "0  Argument 'count' is required"                              },
        {{"x"},
         "0  Value validation problem in argument 'x': Option 'count' can not parse 'x' value, "
         "requires a type 'integer' here."                                                                },
        {{"0"},
         "0  Value '0' is not valid for option 'count' in argument '0': it must be between 1 "
         "and 9"                                                                                          },
        {{"3", "up", "a"},
         "0  Value validation problem in argument 'up': Option 'name' does not allow value 'up'. "
         "Possible values follows: 'left', 'right'"                                                       },
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Positionals().parse(row.line), row.expected);
    }
    EXPECT_EQ(Positionals(usualFlags | flagPositionalTakesRest).parse({"3", "left", "-x", "--"}),
              "3 left -x -- ");
    const OptionFile file("--name=right\n--rest=b\nc");
    Positionals filed;
    filed.parser.readOptionFiles("");
    EXPECT_EQ(filed.parse({"3", "left", "a", "--option-file=typed_test.options"}), "3 left a b c ");
    std::ofstream(OptionFile::name()) << "3\nright\n--name=left\n";
    EXPECT_EQ(filed.parse({"--option-file=typed_test.options"}), "3 left ");
    Positionals negative;
    negative.parser.accept(unixHabits);
    EXPECT_EQ(
        negative.parse({"-5"}),
        "0  Value '-5' is not valid for option 'count' in argument '-5': it must be between 1 "
        "and 9");
    negative.parser.declare({option("5", "")});
    EXPECT_EQ(negative.parse({"-5"}), "0  Argument 'count' is required");
    std::string only;
    Parser single;
    single.declare({positional("only", "").into(only)});
    const Line line{"a", "b"};
    EXPECT_STREQ(single.parse(line.argc(), line.argv()).text(), "Unexpected argument: b");
    EXPECT_EQ(only, "");
}

TEST(PositionalItems, OfAGroupKeepTheirOwnKinds) {
    const auto parse = [](const Line& line) {
        std::string from;
        std::string to;
        std::vector<int> numbers;
        Parser parser;
        parser.declare({positional("from", "").into(from),
                        positional("to", "")
                            .check([](const std::string& text) { return text != "x"; }, "no x")
                            .into(to),
                        positional<int>("number", "").fromEnvironment("TOOL_ANY").into(numbers)});
        const Result result = parser.parse(line.argc(), line.argv());
        std::string all = result.text() + from + ' ' + to;
        all += result.origin("number") == Origin::environment ? " environment:" : "";
        for (const int number : numbers) {
            all += ' ' + std::to_string(number);
        }
        return all;
    };
    EXPECT_EQ(parse({"a", "b", "1", "2"}), "a b 1 2");
    EXPECT_EQ(parse({"a"}), "a ");
    const Variable number("TOOL_ANY", "7");
    EXPECT_EQ(parse({"a", "b", "1"}), "a b 1");
    EXPECT_EQ(parse({"a", "b"}), "a b environment: 7");
    EXPECT_EQ(parse({"a", "x", "1"}),
              "Value 'x' is not valid for option 'to' in argument 'x': no x ");
}

TEST(PositionalItems, LeaveWhatStandsBehindTheTerminatorWhereTheyDoNotTakeIt) {
    for (const int flags : {0, +flagPositionalTakesRest}) {
        std::vector<std::string> files;
        Parser parser({}, flags);
        parser.declare({positional("file", "").into(files)});
        const Line line{"--", ""};
        EXPECT_EQ(parser.parse(line.argc(), line.argv()).code(),
                  flags == 0 ? resultOk : resultRuleBroken);
    }
}

TEST(FilesAndFolders, MustExistButForTheStandardInput) {
    std::string file;
    const auto parse = [&](unsigned habits, const char* path, bool isFolder) {
        Parser parser;
        parser.accept(habits);
        auto item = option<std::string>("path", "").into(file).byDefault("nowhere");
        parser.declare(
            {isFolder ? std::move(item).existingFolder() : std::move(item).existingFile()});
        const Line line{"--path", path};
        return std::string(parser.parse(line.argc(), line.argv()).text());
    };
    const OptionFile present("");
    EXPECT_EQ(parse(0, present.name(), false) + parse(0, ".", true) + parse(loneDash, "-", false),
              "");
    for (const bool isFolder : {false, true}) {
        const char* const wrong = isFolder ? present.name() : ".";
        const char* const kind = isFolder ? "folder" : "file";
        EXPECT_THAT(parse(0, wrong, isFolder),
                    testing::EndsWith(std::string("an existing ") + kind));
        EXPECT_THAT(parse(0, "nowhere", isFolder), testing::HasSubstr("it must be an existing"));
    }
}

// Whatever fails for lack of memory, no variable is touched, nothing leaks, and the next parse is
// right.
TEST(LackOfMemory, LeavesTheVariablesAsTheyWere) {
    const Variable jobs("TOOL_JOBS", "9");
    const Line line{
        "-qvs10K", "--number=1,2", "--mode=th", "a file with a name of some length", "b"};
    const std::string right =
        "jobs=9 size=10240 quiet=1 verbosity=1 mode=thorough number=1 number=2 "
        "file=a file with a name of some length file=b ";
    std::size_t failures = 0;
    for (long n = 1;; ++n) {
        Settings settings;
        std::unique_ptr<Parser> parser;
        try {
            memory.left = n;
            parser = std::make_unique<Parser>();
            declareSettings(*parser, settings);
            parser->accept(unixHabits);
            const Result result = parser->parse(line.argc(), line.argv());
            const bool isRight = result.code() == resultOk;
            memory.left = 0;
            EXPECT_EQ(settings.changed(), isRight ? right : "") << "allocation " << n;
        } catch (const std::bad_alloc&) {
            memory.left = 0;
            EXPECT_EQ(settings.changed(), "") << "allocation " << n;
        }
        if (!std::exchange(memory.hasStruck, false)) {
            break;
        }
        ++failures;
    }
    EXPECT_GT(failures, 150u);
}

}  // namespace
}  // namespace zarn_3_3
