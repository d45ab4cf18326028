// Constants, optional values, checks of a whole line and defaults that are shown.

#include <gmock/gmock.h>

#include <fstream>
#include <string>

#include "support/scratch_folder.h"
#include "typed/tool_under_test.h"

enum class Order { plain, numeric, random };

template <>
struct zarn::Names<Order> {
    static constexpr const char* table[] = {"plain", "numeric", "random"};
};

namespace zarn_3_3 {
namespace {

struct Sorting {
    Order order = Order::plain;
    std::string color = "never";
    int depth = 3;
    int jobs = 0;
    std::string separator;
    std::string list() const {
        return Names<Order>::table[static_cast<int>(order)] + (" " + color) + " " +
               std::to_string(depth) + (separator.empty() ? "" : " ") + separator;
    }
};

void declareSorting(Parser& parser, Sorting& sorting) {
    parser.declare({
        option<Order>("sort", "By what.").into(sorting.order),
        option("numeric-sort,n", "Numbers.").stores(sorting.order, Order::numeric),
        option("random-sort,R", "Shuffle.").stores(sorting.order, Order::random),
        option("unique,u", "Drop equal lines."),
        option<std::string>("color,c", "Colours.")
            .allow({"always", "never", "auto"})
            .withoutValue("always")
            .into(sorting.color),
        option<int>("depth,d", "How deep.").withoutValue(9).into(sorting.depth),
        option<int>("jobs", "How many.").atLeast(1).into(sorting.jobs),
        option<std::string>("separator,t", "What is between.").into(sorting.separator),
        option("about", "What it is.").alone(),
        positional("FILE", "What to sort."),
    });
    parser.check([&sorting] { return sorting.order != Order::random || sorting.depth < 9; },
                 "what is shuffled is not that deep");
    parser.check([&sorting] {
        return sorting.jobs < 9 ? "" : std::to_string(sorting.jobs) + " jobs are too many";
    });
}

struct SortingRow {
    Line line;
    unsigned habits;
    std::string expected;  // the variables, and behind them the message
};

TEST(Shapes, OfOptionsBeyondOneValueEach) {
    const SortingRow rows[] = {
        {{"-n"},                       0,                       "numeric never 3"                                                      },
        {{"-n", "-R"},                 0,                       "random never 3"                                                       },
        {{"-R", "--sort=plain"},       0,                       "plain never 3"                                                        },
        {{"--sort=plain", "-R", "-n"}, 0,                       "numeric never 3"                                                      },
        {{"--color", "never"},         0,                       "plain always 3"                                                       },
        {{"--color=", "auto"},
         0,                                                     "plain never 3 Option 'color' requires a value in argument: '--color='"},
        {{"--col", "--color=auto"},    0,                       "plain auto 3"                                                         },
        {{"--color=x"},
         0,                                                     "plain never 3 Value validation problem in argument '--color=x': Option 'color' does not "
         "allow value 'x'. Possible values follows: 'always', 'never', 'auto'"                                              },
        {{"-nd", "4"},                 bundles,                 "numeric never 9"                                                      },
        {{"-d4n"},
         unixHabits,                                            "plain never 3 Value validation problem in argument '-d4n': Option "
         "'depth' can not parse '4n' value, requires a type 'integer' here."                                       },
        {{"-n", "--jobs=8"},           0,                       "numeric never 3"                                                      },
        {{"-n", "--jobs=9"},           0,                       "plain never 3 9 jobs are too many"                                    },
        {{"-d4", "-c"},                unixHabits,              "plain always 4"                                                       },
        {{"-R", "-d"},                 0,                       "plain never 3 what is shuffled is not that deep"                      },
        {{"-R", "-d", "--about"},      0,                       "random never 9"                                                       },
        {{"\u2013nu"},                 unixHabits,              "numeric never 3"                                                      },
        {{"\u2014d4", "\u2013ra"},     unixHabits,              "random never 4"                                                       },
        {{"\u2013nt=", "-R"},          unixHabits | shortNames, "random never 3 ="                                                     },
        {{"\u2013ra"},                 unixHabits | shortNames, "plain never 3 Unknown option: \u2013ra"                               },
        {{"\u2013nz"},                 unixHabits,              "plain never 3 Unknown option: \u2013nz"                               },
        {{"\u2013z"},                  0,                       "plain never 3 Unknown option: \u2013z"                                },
        {{"-nu"},                      unixHabits,              "numeric never 3"                                                      },
        {{"-nu"},                      unixHabits | shortNames, "numeric never 3"                                                      },
        {{"-un"},                      unixHabits | shortNames, "numeric never 3"                                                      },
        {{"-ra"},                      unixHabits,              "random never 3"                                                       },
        {{"-ra"},                      unixHabits | shortNames, "plain never 3 Unknown option: -ra"                                    },
        {{"-sort=random"},             shortNames,              "plain never 3 Unknown option: -sort=random"                           },
        {{"--sort=random"},            shortNames,              "random never 3"                                                       },
        {{"-cu"},
         unixHabits,                                            "plain never 3 Value validation problem in argument '-cu': Option 'color' does not allow "
         "value 'u'. Possible values follows: 'always', 'never', 'auto'"                                           },
        {{"-nt=", "-t==", "-tx=y"},    unixHabits | shortNames, "numeric never 3 x=y"                                                  },
        {{"-nt="},                     unixHabits | shortNames, "numeric never 3 ="                                                    },
        {{"-t=x"},                     unixHabits | shortNames, "plain never 3 =x"                                                     },
        {{"-t", "="},                  unixHabits | shortNames, "plain never 3 ="                                                      },
        {{"-t=x"},                     shortNames,              "plain never 3 x"                                                      },
        {{"-t=x"},                     unixHabits,              "plain never 3 x"                                                      },
        {{"-t="},
         unixHabits,                                            "plain never 3 Option 'separator' requires a value in argument: '-t='" },
    };
    for (const SortingRow& row : rows) {
        Sorting sorting;
        Parser parser;
        declareSorting(parser, sorting);
        parser.accept(row.habits);
        const Result result = parser.parse(row.line.argc(), row.line.argv());
        EXPECT_EQ(sorting.list() + (result ? "" : " ") + result.text(), row.expected);
    }
}

TEST(Shapes, ShowDefaultsThatTheyWouldTake) {
    Sorting sorting;
    Parser parser;
    parser.showDefaults();
    declareSorting(parser, sorting);
    std::size_t lines = 5;
    parser.declare({option<std::size_t>("lines", "").into(lines).byDefault(8u)});
    const std::string help = parser.help();
    for (const char* shown : {"(default plain)",
                              "(default never)",
                              "(default 3)",
                              "(default 8)",
                              "-c, --color[=TEXT]  "}) {
        EXPECT_THAT(help, testing::HasSubstr(shown));
    }
    EXPECT_THAT(help, testing::Not(testing::HasSubstr("(0)")));
    EXPECT_TRUE(parser.parse(0, nullptr));
    EXPECT_EQ(sorting.list() + std::to_string(lines), "plain never 38");
    // An empty text is no default, and none that a check of the vocabulary finds fault with.
    EXPECT_EQ(parser.check("no-help,tie,own-tie"), "");
}

struct Single {
    Order order = Order::plain;
    Bytes size;
    bool color = false;
    int way = 0;
    std::string mark;
};

void declareSingle(Parser& parser, Single& single) {
    parser.declare({
        option<Order>("sort", "").into(single.order).once(),
        option("numeric,n", "").stores(single.order, Order::numeric),
        option("random,R", "").stores(single.order, Order::random),
        option<Bytes>("size,s", "").into(single.size).once(),
        option<bool>("color", "").into(single.color).once(),
        option("up", "").stores(single.way, 1).once(),
        option("down", "").stores(single.way, 2),
        option("dot", "").stores(single.mark, ".").once(),
        option<std::string>("mark", "").into(single.mark),
        option<std::string>("name", "").allow({"a", "b"}).byDefault("").once(),
        option<int>("any", ""),
        option("about", "").alone(),
    });
    parser.readOptionFiles("");
}

TEST(Shapes, OfWhatTakesOneValueHoweverOften) {
    const testing_support::ScratchFolder folder;
    const std::string path = "once.options";
    std::ofstream(path) << "--name=b\n-R\n-n\n";
    const std::string file = "--option-file=" + path;
    const struct {
        Line line;
        const char* message;
    } rows[] = {
        {{"-n", "--sort=numeric", "-n"},             ""                                                      },
        {{"-n", "-R"},                               "Option '--numeric' does not go with option '--random'" },
        {{"--sort=random", "-n"},                    "Option '--sort' does not go with option '--numeric'"   },
        {{"--sort=num", "--sort=ran"},
         "Option '--sort' takes one value, not 'numeric' and 'random'"                                       },
        {{"-s=64K", "-s=65536"},                     ""                                                      },
        {{"-s=64K", "-s=65537"},                     "Option '--size' takes one value, not '64K' and '65537'"},
        {{"--color", "--color"},                     ""                                                      },
        {{"--color", "--no-color"},                  "Option '--color' takes one value, not '1' and '0'"     },
        {{"--up", "--up"},                           ""                                                      },
        {{"--down", "--up"},                         "Option '--down' does not go with option '--up'"        },
        {{"--dot", "--mark=."},                      ""                                                      },
        {{"--dot", "--mark=x"},                      "Option '--dot' does not go with option '--mark'"       },
        {{"--mark=x", "--dot"},                      "Option '--mark' does not go with option '--dot'"       },
        {{"--mark=x", "--mark=y"},                   "Option '--mark' takes one value, not 'x' and 'y'"      },
        {{"--name=a", "--name=a"},                   ""                                                      },
        {{"--name=a", "--name=b"},                   "Option '--name' takes one value, not 'a' and 'b'"      },
        {{"--any=1", "--any=2"},                     ""                                                      },
        {{"--name=a", "--name=b", "--about"},        ""                                                      },
        {{"--name=a", "--sort=plain", file.c_str()}, ""                                                      },
        {{file.c_str()},                             "Option '--random' does not go with option '--numeric'" },
    };
    for (const auto& row : rows) {
        Single single;
        Parser parser;
        declareSingle(parser, single);
        EXPECT_STREQ(parser.parse(row.line.argc(), row.line.argv()).text(), row.message);
    }
}

TEST(Shapes, SetVariablesBackWhenACheckOfTheLineThrows) {
    Sorting sorting;
    Parser parser;
    declareSorting(parser, sorting);
    bool isForeign = false;
    parser.check([&]() -> bool { isForeign ? throw 1 : throw std::runtime_error("no"); }, "");
    const Line line{"-n", "-R"};
    const Result result = parser.parse(line.argc(), line.argv());
    EXPECT_EQ(result.code(), resultException);
    EXPECT_STREQ(result.text(), "no");
    EXPECT_EQ(sorting.list(), "plain never 3");
    isForeign = true;
    EXPECT_THROW(static_cast<void>(parser.parse(line.argc(), line.argv())), int);
    EXPECT_EQ(sorting.list(), "plain never 3");
}

TEST(Shapes, AreRefusedWithoutAReasonToo) {
    Parser parser;
    parser.check([] { return false; }, "");
    EXPECT_EQ(parser.parse(0, nullptr).code(), resultRuleBroken);
}

}  // namespace
}  // namespace zarn_3_3
