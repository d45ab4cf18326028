// A row for each mistake that the check of a vocabulary finds: the smallest vocabulary that has it,
// and its neighbour that has not.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "support/failing_new.h"
#include "support/tool.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {
namespace {

using testing_support::PlainTool;

struct CheckRow {
    std::function<void(PlainTool&)> declare;
    const char* findings;
};

IOption& addOption(PlainTool& tool, const char* names, das_variant_type_t type = vtString) {
    return tool->option(names, "Help.", type, "");
}
IOption& addAction(PlainTool& tool, const char* names) {
    return tool->action(names, "Help.", vtNull, "");
}
IOption& addModifier(PlainTool& tool, const char* names, const char* actions) {
    return tool->modifier(names, actions, "Help.", vtNull, "");
}

void expectFindings(const CheckRow& row) {
    PlainTool tool;
    row.declare(tool);
    const char* findings = nullptr;
    const int code = checkVocabulary(tool.parser, nullptr, &findings);
    const std::string text = findings;
    const int worst = text.find("error ") == std::string::npos ? warningsFound : errorsFound;
    EXPECT_EQ(text, row.findings);
    EXPECT_EQ(code, text.empty() ? nothingFound : worst) << text;
}

TEST(Checks, TellOfNames) {
    const CheckRow rows[] = {
        {[](PlainTool& t) { addOption(t, "a"), addOption(t, "b,a"), addOption(t, "c"); },
         "error refused 'b': the declaration of 'b,a' is lost: 'a' already means 'a'\n"           },
        {[](PlainTool& t) { addOption(t, "a,b,c,d"), addOption(t, "e,f,g"); },
         "error refused 'a': the declaration of 'a,b,c,d' is lost: it has more than three names\n"},
        {[](PlainTool& t) { addOption(t, "a,b,long"), addOption(t, "d,e,fg"); },
         "error refused 'a': the declaration of 'a,b,long' is lost: its third name, 'long', is "
         "longer than two bytes\n"                                                                },
        {[](PlainTool& t) { addOption(t, ""); },
         "error nameless '': the item has no name, so that nothing can be stored for it\n"        },
        {[](PlainTool& t) { addOption(t, "a").synonym("-b"); },
         "error untypable-name 'a': the name '-b' can't be typed: it is empty, begins with a dash, "
         "or holds '=' or white space\n"                                                          },
        {[](PlainTool& t) { addOption(t, "a b"), addOption(t, "c=d"), addOption(t, "e-f"); },
         "error untypable-name 'a b': the name 'a b' can't be typed: it is empty, begins with a "
         "dash, or holds '=' or white space\n"
         "error untypable-name 'c=d': the name 'c=d' can't be typed: it is empty, begins with a "
         "dash, or holds '=' or white space\n"                                                    },
        {[](PlainTool& t) { addOption(t, "a").synonym("b,c"); },
         "error comma-in-name 'a': 'b,c' is one name, with its comma: names are cut in "
         "declarations alone\n"                                                                   },
        {[](PlainTool& t) { addOption(t, "a"), addOption(t, "b").synonym("a"); },
         "error name-clash 'b': 'a' means 'a', which was declared before: the item is not reached "
         "by it\n"                                                                                },
        {[](PlainTool& t) {
             addOption(t, "no-a"), addOption(t, "a", vtBool), addOption(t, "b", vtBool);
         },                                                                          "error name-clash 'a': 'no-a' means 'no-a', which was declared before: the item is not "
         "reached by it\n"                                                    },
        {[](PlainTool& t) { addOption(t, "no-a", vtBool), addOption(t, "no-b", vtNull); },
         "warning negated-name 'no-a': 'no-a' switches the boolean off, as every name does that "
         "begins with 'no-'\n"                                                                    },
        {[](PlainTool& t) {
             addOption(t, "color,colour"), addOption(t, "v,verbose"), addOption(t, "x,xy");
         },                                                                          "warning own-tie 'color': 'colo' begins 'color' and 'colour' and nothing else, and is "
         "refused as ambiguous\n"                                             },
        {[](PlainTool& t) { addOption(t, "color,colour"), addOption(t, "colon"); },           ""  },
        {[](PlainTool& t) { addOption(t, "color,colour").synonym("colours"); },
         "warning own-tie 'color': 'colo' begins 'color' and 'colour' and nothing else, and is "
         "refused as ambiguous\n"                                                                 },
        {[](PlainTool& t) { addOption(t, "color,colour").synonym("colo"); },                  ""  },
        {[](PlainTool& t) { addOption(t, "a\nb"); },
         "error untypable-name 'a\\x0ab': the name 'a\\x0ab' can't be typed: it is empty, begins "
         "with a dash, or holds '=' or white space\n"                                             },
    };
    for (const CheckRow& row : rows) {
        expectFindings(row);
    }
}

TEST(Checks, TellOfActionsAndPlaces) {
    const CheckRow rows[] = {
        {[](PlainTool& t) {
             addAction(t, "pack,p"), addModifier(t, "a", "pack"), addModifier(t, "b", "pack,list");
         },                                                                           "error unknown-action 'b': there is no action 'list' that the item could go with\n"},
        {[](PlainTool& t) { addAction(t, "pack,p"), addModifier(t, "a", "p"); },
         "error action-synonym 'a': 'p' is a synonym of the action 'pack', which is known by its "
         "first name alone\n"                                                                                                                                                     },
        {[](PlainTool& t) {
             addAction(t, "pack,p"), addAction(t, "list");
             t->allowSimultaneousActions({"list", "pack"});
             t->allowSimultaneousActions({"list", "test"});
             t->allowSimultaneousActions({"list", "p"});
         },                                                                           "error unknown-in-group 'test': the group 'list,test' names it, and there is no such "
         "action\n"
         "error action-synonym 'p': 'p' is a synonym of the action 'pack', which is known by "
         "its first name alone\n"                                                                                                                             },
        {[](PlainTool& t) { addOption(t, "a").positional(), addOption(t, "b").positional(); },
         "error second-positional 'b': the arguments go to 'a', which was declared before\n"                                                                                      },
        {[](PlainTool& t) {
             t->option("a", nullptr, vtNull, ""), t->option("b", "", vtNull, "zarn_hidden");
         },                                                                           "warning no-help 'a': it has no description: help has nothing to say of it\n"      },
        {[](PlainTool& t) { addOption(t, "a\xff"), addOption(t, "a\xc3\xa4"); },
         "warning not-utf8 'a\xff': one of its texts is not UTF-8: help and description show it "
         "broken\n"                                                                                                                                                               },
    };
    for (const CheckRow& row : rows) {
        expectFindings(row);
    }
}

TEST(Checks, TellOfTextsThatAreNotUtf8) {
    std::string findings;
    for (const char* const item : {"a", "b", "c", "d"}) {
        findings += std::string("warning not-utf8 '") + item +
                    "': one of its texts is not UTF-8: help and description show it broken\n";
    }
    const auto declare = [](PlainTool& t) {
        addOption(t, "a").defaultValue("\xff");
        addOption(t, "b").allowValue("\xff");
        addOption(t, "c").allowValue("x").allowDeprecatedValue("\xff", "x");
        addOption(t, "d"), addOption(t, "e");
        nameValue(t.parser, "d", "\xff");
    };
    expectFindings({declare, findings.c_str()});
}

TEST(Checks, TellOfValues) {
    const CheckRow rows[] = {
        {[](PlainTool& t) {
             addOption(t, "a").allowValue("x").defaultValue("y");
             addOption(t, "b").allowValue("x").allowDeprecatedValue("y", "x").defaultValue("x");
             addOption(t, "c").allowValue("x").allowDeprecatedValue("y", "x").defaultValue("y");
         },                                                             "error default-not-allowed 'a': its default 'y' is none of the values that it allows\n"},
        {[](PlainTool& t) {
             addOption(t, "a", vtS32).defaultValue("5");
             addOption(t, "b", vtU32).defaultValue(5);
             addOption(t, "c", vtU32).defaultValue(-5);
             addOption(t, "d").defaultValue(5);
             addOption(t, "e", vtDouble).defaultValue(5);
             addOption(t, "f", vtDouble).defaultValue(0.1 + 0.2);
             addOption(t, "g", vtBool).defaultValue(true);
             addOption(t, "h", vtBool).defaultValue(2);
             addOption(t, "i", vtS32).defaultValue(5.0);
             addOption(t, "j", vtU64).defaultValue(-1);
             addOption(t, "k", vtS64).defaultValue(~0ULL);
             addOption(t, "l").defaultValue(variant_t::wideText(L"x"));
             addOption(t, "m", vtU64).defaultValue(~0ULL);
             addOption(t, "n").defaultValue(variant_t("x", true));
         },                                                             "error default-type 'a': its default is no value of the type 'int32': a query answers "
         "something else\n"
         "error default-type 'c': its default is no value of the type 'uint32': a query answers "
         "something else\n"
         "error default-type 'd': its default is no value of the type 'text': a query answers "
         "something else\n"
         "error default-type 'h': its default is no value of the type 'boolean': a query answers "
         "something else\n"
         "error default-type 'i': its default is no value of the type 'int32': a query answers "
         "something else\n"
         "error default-type 'j': its default is no value of the type 'uint64': a query answers "
         "something else\n"
         "error default-type 'k': its default is no value of the type 'int64': a query answers "
         "something else\n"
         "error default-type 'l': its default is no value of the type 'text': a query answers "
         "something else\n"                                                                                                                         },
        {[](PlainTool& t) {
             addOption(t, "a").defaultValue(""), addOption(t, "b").defaultValue(" ");
         },                                                             "error default-empty 'a': its default is empty: a query does not find it\n"            },
        {[](PlainTool& t) { addOption(t, "a", vtNull).defaultValue("x"); },
         "error default-on-switch 'a': a switch has no value: its default is never seen\n"                                                                              },
        {[](PlainTool& t) {
             addOption(t, "a").allowValue("x,y").allowValue("z");
             addOption(t, "b").allowValue("x,y").tokenize('\0');
             addOption(t, "c").allowValue("x").allowDeprecatedValue("", "x");
             addOption(t, "d", vtS32).allowValue("1").allowValue(2).allowValue(3.0);
             addOption(t, "e", vtDouble).allowValue(0.1).allowValue(HUGE_VAL);
         },                                                             "error value-unusable 'a': the value 'x,y' can't be typed: it is empty, of another type"
         ", or is cut\n"
         "error value-unusable 'c': the value '' can't be typed: it is empty, of another type"
         ", or is cut\n"
         "error value-unusable 'd': the value '1' can't be typed: it is empty, of another type"
         ", or is cut\n"
         "error value-unusable 'd': the value '3' can't be typed: it is empty, of another type, or "
         "is cut\n"
         "error value-unusable 'e': the value 'inf' can't be typed: it is empty, of another type, "
         "or is cut\n"                                                                                                                              },
        {[](PlainTool& t) { addOption(t, "a", vtNull).allowValue("x"); },
         "error values-on-switch 'a': a switch has no value: those that it allows are never "
         "seen\n"                                                                                                                                                       },
        {[](PlainTool& t) { addOption(t, "a").allowDeprecatedValue("x", "y"); },
         "error deprecated-alone 'a': without allowed values everything is accepted, and nobody is "
         "warned\n"                                                                                                                                                     },
    };
    for (const CheckRow& row : rows) {
        expectFindings(row);
    }
}

TEST(Checks, AreSilentAboutWhatIsIgnored) {
    PlainTool tool;
    addOption(tool, "color,colour"), addOption(tool, "").positional(), addOption(tool, "b,c,d,e");
    const char* findings = nullptr;
    const auto check = [&](const char* ignored) {
        return checkVocabulary(tool.parser, ignored, &findings);
    };
    EXPECT_EQ(check("refused:c,nameless:b"), errorsFound);
    EXPECT_EQ(check("refused,nameless"), warningsFound);
    EXPECT_EQ(check("refused:b,nameless:,own-tie:color"), nothingFound) << findings;
    EXPECT_STREQ(findings, "");
}

TEST(Checks, AnswerTheQuestion) {
    PlainTool tool;
    addOption(tool, "a,b,c,d"), addOption(tool, "");
    const ToolInfo info{sizeof info, nullptr, nullptr, nullptr};
    const char* answer = nullptr;
    const auto ask = [&](const char* question) {
        const char* const line[] = {"tool", "--zarn-answer", question};
        EXPECT_EQ(answerQuestion(tool.parser, &info, 3, line, &answer), questionAnswered);
        return std::string(answer);
    };
    const char* all = nullptr;
    checkVocabulary(tool.parser, nullptr, &all);
    EXPECT_EQ(ask("check"), all);
    EXPECT_EQ(ask("check:refused,nameless"), "");
    EXPECT_EQ(answerQuestion(tool.parser, nullptr, 0, nullptr, &answer), toolingFailed);
    EXPECT_EQ(answerQuestion(tool.parser, &info, 1, nullptr, &answer), toolingFailed);
    EXPECT_EQ(nameValue(tool.parser, nullptr, "X"), toolingFailed);
    EXPECT_EQ(nameValue(tool.parser, "nowhere", "X"), toolingFailed);
}

TEST(Checks, NeedTheirMemoryAndNothingElse) {
    EXPECT_EQ(checkVocabulary(nullptr, "", nullptr), toolingFailed);
    PlainTool tool;
    addOption(tool, "color,colour"), addOption(tool, "a", vtNull).allowValue("x");
    tool->allowSimultaneousActions({"a", "b"});
    static_cast<Countdown&>(memory) = {1, false, false};
    tool->option("lost", "Help.", vtNull, "a section of some length");
    static_cast<Countdown&>(memory) = {};
    const char* text = nullptr;
    EXPECT_EQ(checkVocabulary(tool.parser, nullptr, &text), errorsFound);
    EXPECT_NE(std::string(text).find("memory ran out"), std::string::npos) << text;
    long n = 0;
    for (bool hasStruck = true; hasStruck; ++n) {
        const char* findings = nullptr;
        static_cast<Countdown&>(memory) = {n + 1, false, false};
        const int code = checkVocabulary(tool.parser, "no-help", &findings);
        hasStruck = memory.hasStruck;
        static_cast<Countdown&>(memory) = {};
        EXPECT_EQ(code, hasStruck ? int{toolingFailed} : int{errorsFound}) << "allocation " << n;
        EXPECT_EQ(*findings == '\0', hasStruck);
    }
    EXPECT_GT(n, 5);
}

}  // namespace
}  // namespace zarn_3_3
