// What authors are told.

#include <gmock/gmock.h>

#include "typed/tool_under_test.h"

namespace zarn_3_3 {
namespace {

struct Mistake {
    void (*make)(Parser&);
    const char* text;
};

TEST(Mistakes, AreToldWithWhatAndWhere) {
    static int a = 0;
    static std::string text;
    const Mistake mistakes[] = {
        {[](Parser& p) {
             p.declare({action("pack", ""), positional("a", "pack", ""), positional("b", "")});
         },                                                                       "'b': all positional items go with the same actions"             },
        {[](Parser& p) {
             p.declare({option("quiet", ""), option("still,quiet", "")});
         },                                                                       "'still,quiet': the name 'quiet' is taken by 'quiet'"            },
        {[](Parser& p) {
             p.declare({option<bool>("color", ""), option("no-color", "")});
         },                                                                       "'no-color': the name 'no-color' is taken by 'color'"            },
        {[](Parser& p) {
             p.declare({option("no-color", ""), option<bool>("color", "")});
         },                                                                       "'color': the name 'no-color' is taken by 'no-color'"            },
        {[](Parser& p) {
             p.readOptionFiles("");
             p.declare({option("option-file", "")});
         },                                                                       "'option-file': the name 'option-file' is taken by 'option-file'"},
        {[](Parser& p) {
             p->option("hush,plain", "", vtNull, "");
             p.declare({option("plain", "")});
         },                                                                       "'plain': the name 'plain' is taken by 'hush,plain'"             },
        {[](Parser& p) { p.declare({option("", "")}); },                                   "'': a name is empty"                                            },
        {[](Parser& p) { p.declare({option(nullptr, "")}); },                              "'': a name is empty"                                            },
        {[](Parser& p) { p.declare({option("a,", "")}); },                                 "'a,': a name is empty"                                          },
        {[](Parser& p) { p.declare({option("--level", "")}); },
         "'--level': the name '--level' begins with a dash, or holds a blank or '='"                                                                        },
        {[](Parser& p) { p.declare({option("level, l", "")}); },
         "'level, l': the name ' l' begins with a dash, or holds a blank or '='"                                                                            },
        {[](Parser& p) { p.declare({option("a=b", "")}); },
         "'a=b': the name 'a=b' begins with a dash, or holds a blank or '='"                                                                                },
        {[](Parser& p) { p.declare({option("a,b,c,d", "")}); },
         "'a,b,c,d': there are more than three names"                                                                                                       },
        {[](Parser& p) { p.declare({option("level,l,lvl", "")}); },
         "'level,l,lvl': the third name, 'lvl', is longer than two bytes"                                                                                   },
        {[](Parser& p) {
             p.declare({option<int>("a", "").allow({1, 2}).deprecate(3, 2).byDefault(3)});
         },                                                                       "'a': its default is refused: it is not among its allowed values"},
        {[](Parser& p) {
             static Mode mode;
             mode = static_cast<Mode>(7);
             p.declare({option<Mode>("a", "").into(mode).byDefault()});
         },                                                                       "'a': its default is refused: it is not among its allowed values"},
        {[](Parser& p) { p.declare({option<unsigned>("a", "").atLeast(-3)}); },
         "'a': a number of its declaration does not fit: it must be between 0 and 4294967295"                                                               },
        {[](Parser& p) { p.declare({option<int>("a", "").between(1, 2).byDefault(3)}); },
         "'a': its default is refused: it must be between 1 and 2"                                                                                          },
        {[](Parser& p) { p.declare({option<int>("a", "").between(2, 1)}); },
         "'a': no value lies between its bounds"                                                                                                            },
        {[](Parser& p) { p.declare({option<short>("a", "").byDefault(40000)}); },
         "'a': a number of its declaration does not fit: it must be between -32768 and 32767"                                                               },
        {[](Parser& p) { p.declare({option<int>("a", "").byDefault()}); },
         "'a': byDefault() shows a variable for one value, and into() names none"                                                                           },
        {[](Parser& p) { p.declare({option<int>("a", "").atMost(2).withoutValue(3)}); },
         "'a': what it is without a value is refused: it must be at most 2"                                                                                 },
        {[](Parser& p) { p.declare({option<std::string>("a", "").withoutValue("")}); },
         "'a': what it is without a value is refused: it is empty"                                                                                          },
        {[](Parser& p) { p.declare({option("a,b,a", "")}); },
         "'a,b,a': the name 'a' is given twice"                                                                                                             },
        {[](Parser& p) {
             p.declare({option<int>("a", "").into(a), option<int>("b", "").into(a)});
         },                                                                       "'b': its variable is that of 'a'"                               },
        {[](Parser& p) {
             p.declare({action("pack,p", ""), modifier("a", "pack,p", "")});
         },                                                                       "'a': no action has the primary name 'p'"                        },
        {[](Parser& p) {
             p.declare({option("pack", ""), modifier("a", "pack", "")});
         },                                                                       "'a': no action has the primary name 'pack'"                     },
        {[](Parser& p) {
             p.exactlyOne({"a", "b"});
         },                                                                       "'a': no option of this name is declared"                        },
        {[](Parser& p) {
             p.declare({option<int>("count", "").byDefault(1)});
             text = *p.parse(0, nullptr).get<std::string>("cuont");
         },                                                                       "'cuont': no option of this name is declared"                    },
        {[](Parser& p) { static_cast<void>(p.parse(0, nullptr).occurrences({nullptr})); },
         "'': no option of this name is declared"                                                                                                           },
    };
    for (const Mistake& mistake : mistakes) {
        Parser parser;
        try {
            mistake.make(parser);
            EXPECT_TRUE(parser.parse(0, nullptr)) << "it was not noticed: " << mistake.text;
            ADD_FAILURE() << mistake.text;
        } catch (const std::logic_error& error) {
            EXPECT_EQ(error.what(), std::string("zarn: ") + mistake.text);
        }
    }
}

TEST(Mistakes, AreNoneWhereItemsAreDeclaredPlainly) {
    Parser parser;
    parser->option("plain", "", vtS32, "");
    parser->option("other", "", vtNull, "");
    parser->option("file", "", vtString, "").positional();
    parser.readOptionFiles("");
    parser.atMostOne({"plain", "other", "option-file", "file"});
    const Line line{"--plain=3"};
    const Result result = parser.parse(line.argc(), line.argv());
    EXPECT_EQ(result.get<int>("plain"), 3);
    EXPECT_EQ(result.occurrences({"plain"}).size(), 1u);
    EXPECT_FALSE(parser.parse(0, nullptr).isGiven("plain"));
    const Line both{"--other", "--plain=3"};
    EXPECT_STREQ(parser.parse(both.argc(), both.argv()).text(),
                 "Option '--plain' does not go with option '--other'");
    const Line argument{"--other", "x"};
    EXPECT_STREQ(parser.parse(argument.argc(), argument.argv()).text(),
                 "Option '--other' does not go with argument 'file'");
}

TEST(Mistakes, ThatAreNoneOfTheDeclarationsAreFoundByACheck) {
    int a = 0;
    Parser parser;
    parser.declare({option<int>("color,colour", "Help.").into(a), option("b", "")});
    EXPECT_EQ(
        parser.check(),
        "warning own-tie 'color': 'colo' begins 'color' and 'colour' and nothing else, and is "
        "refused as ambiguous\n"
        "warning no-help 'b': it has no description: help has nothing to say of it\n");
    EXPECT_EQ(parser.check("own-tie,no-help:b"), "");
    Settings settings;
    Parser flawless;
    declareSettings(flawless, settings);
    flawless.declare({positional<int>("count", "How many.")});
    EXPECT_EQ(flawless.check(nullptr), "");
    parser.declare({option<int>("c", "Help.").into(a)});
    EXPECT_THROW(parser.check(), std::logic_error);
}

TEST(Mistakes, LeaveTheVocabularyAsItWas) {
    int a = 0;
    Parser parser;
    EXPECT_THROW(parser.declare({option<int>("a b", "").into(a)}), std::logic_error);
    parser.declare({option<int>("a", "").into(a)});
    const Line line{"-a", "3"};
    EXPECT_TRUE(parser.parse(line.argc(), line.argv()));
    EXPECT_EQ(a, 3);
}

}  // namespace
}  // namespace zarn_3_3
