// Which actions and options go together.

#include <gtest/gtest.h>

#include <algorithm>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::rowsOf;
using testing_support::Tool;
using testing_support::Words;
using testing_support::wordsOf;

// The groups are given as "alpha,beta beta,gamma".
const auto rows = rowsOf(
    R"(Nothing                 | | q                |
OneAction               | | --beta           |
SameActionTwice         | | --alpha --a      |
TwoActions              | | --beta --alpha   | Action '-beta' and action '-alpha' were defined, but only one action possible.
OrderOfNamesDecides     | | --zeta --b       | Action '-zeta' and action '-beta' were defined, but only one action possible.
GroupHoldsBoth          | x alpha,beta     | --b --a  |
GroupHoldsThree         | alpha,beta,gamma | --gamma --alpha --beta |
GroupHoldsOne           | alpha            | --alpha --beta | Action '-beta' and action '-alpha' were defined, but only one action possible.
GroupsDoNotAddUp        | alpha,beta beta,gamma alpha,gamma | --alpha --beta --gamma | Action '-gamma' and action '-alpha' were defined, but only one action possible.
GroupNamesSynonym       | a,beta           | --a --beta | Action '-beta' and action '-alpha' were defined, but only one action possible.
ItsModifier             | | --of-alpha --a   |
ModifierOfTwo           | | --of-both --beta |
ModifierOfOneInAGroup   | alpha,beta       | --of-alpha --beta --alpha |
OthersModifier          | | --b --m          | Action '-beta' doesn't accept option '-of-alpha'
FirstOfTwoWrong         | beta,gamma       | --gamma --beta --of-alpha --by-synonym | Action '-beta' doesn't accept option '-by-synonym'
ModifierNamesSynonym    | | --alpha --by-synonym | Action '-alpha' doesn't accept option '-by-synonym'
TaggedGlobal            | | --tagged --beta  |
TaggedGlobalElsewhere   | | --tagged --alpha | Action '-alpha' doesn't accept option '-tagged'
Global                  | | --global --alpha |
GlobalAlone             | | --global         | No action defined.
PlainArgumentAlone      | | -- q             |)");

class ActionRules : public testing::TestWithParam<Words> {};

TEST_P(ActionRules, Hold) {
    Tool tool;
    for (const char* const names : {"alpha,a", "beta,b", "gamma", "zeta"}) {
        tool->action(names, "", vtNull, "");
    }
    tool->modifier("of-alpha", "alpha", "", vtNull, "").synonym("m");
    tool->modifier("of-both", "alpha,beta", "", vtNull, "");
    tool->modifier("by-synonym", "a", "", vtNull, "");
    tool.option("global", vtNull);
    tool.option("tagged", vtNull).tag("beta");
    EXPECT_TRUE(tool->allowSimultaneousActions({}));
    for (std::string group : wordsOf(GetParam().at(1))) {
        std::replace(group.begin(), group.end(), ',', ' ');
        const Words names = wordsOf(group);
        EXPECT_TRUE(tool->allowSimultaneousActions({names.begin(), names.end()}));
    }

    const int code = tool.parse(wordsOf(GetParam().at(2)));

    EXPECT_EQ(code, GetParam().at(3).empty() ? resultOk : resultRuleBroken);
    EXPECT_EQ(tool.error(), GetParam().at(3));
}

INSTANTIATE_TEST_SUITE_P(Rows, ActionRules, testing::ValuesIn(rows), [](const auto& test) {
    return test.param.at(0);
});

// With `value` as default of a modifier of "alpha".
int parseWithDefault(const variant_t& value, const Words& arguments) {
    Tool tool;
    tool->action("alpha", "", vtNull, "");
    tool->action("beta", "", vtNull, "");
    tool->modifier("depth", "alpha", "", vtString, "").defaultValue(value);
    return tool.parse(arguments);
}

TEST(ActionDefaults, AreNeverRefusedButAskForAnAction) {
    EXPECT_EQ(parseWithDefault("3", {"--beta"}), resultOk);
    EXPECT_EQ(parseWithDefault("3", {"--beta", "--depth=3"}), resultRuleBroken);
    EXPECT_EQ(parseWithDefault("3", {}), resultOk) << "the rules are not reached";
    EXPECT_EQ(parseWithDefault("3", {"zarnoption=zarnlogenable=1"}), resultRuleBroken);
    EXPECT_EQ(parseWithDefault("", {"unknown"}), resultRuleBroken) << "empty, yet an entry";
}

TEST(ActionDefaults, MakeAnActionCountAsGiven) {
    Tool tool;
    tool->action("alpha", "", vtString, "").defaultValue("x");
    tool->action("beta", "", vtNull, "");
    tool.option("global", vtNull);
    EXPECT_EQ(tool.parse({"--global"}), resultOk);
    EXPECT_EQ(tool.parse({"--beta"}), resultRuleBroken);
}

TEST(TextWithoutArguments, IsCheckedWithoutDefaults) {
    Tool tool;
    tool->action("alpha", "", vtNull, "");
    tool.option("level", vtS32).defaultValue(1);
    EXPECT_EQ(tool.parseText(nullptr), resultOk);
    EXPECT_EQ(tool.parse({}), resultOk);
    EXPECT_EQ(tool.parseText("# nothing\n"), resultRuleBroken);
    EXPECT_EQ(tool.error(), "No action defined.");
}

TEST(EntryOfAnotherVocabulary, EndsTheCheckWithTheCodeOfTheLookup) {
    Tool filler;
    filler.option("strange", vtNull);
    EXPECT_EQ(filler.parse({"--strange"}), resultOk);
    Tool tool(flagUnknownIsError);
    tool.parse({"--q"});
    EXPECT_EQ(tool->parseStream("", filler.result), 1);
    EXPECT_EQ(tool.error(), "Unknown option: --q") << "as it was";
}

}  // namespace
}  // namespace zarn_3_3
