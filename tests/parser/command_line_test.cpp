// What a command line means, and how it is refused: whole texts, since tools compare them.

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <tuple>

#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::rowsOf;
using testing_support::Tool;
using testing_support::Words;
using testing_support::wordsOf;

int flagsOf(const std::string& text) {
    static const std::map<std::string, int> flags{
        {"strict", flagUnknownIsError            },
        {"behind", flagPositionalBehindTerminator},
        {"noDash", flagPositionalWithoutDash     },
        {"rest",   flagPositionalTakesRest       },
        {"whole",  flagValuesStayWhole           },
        {"others", ~0x3E                         },
    };
    int word = 0;
    for (const std::string& name : wordsOf(text)) {
        word |= flags.at(name);
    }
    return word;
}

// A row and whether somebody listens: without a handler the library binds an item where it stands,
// with one it binds a copy.
using RowHeard = std::tuple<Words, bool>;

class CommandLine : public testing::TestWithParam<RowHeard> {
protected:
    CommandLine() : row(std::get<0>(GetParam())), tool(flagsOf(row.at(1))) {
        if (std::get<1>(GetParam())) {
            tool.listen();
        }
    }

    void expectOutcome() {
        const CapturedStream warnings(std::cerr);
        const std::string& error = row.at(4);
        EXPECT_EQ(tool.parse(wordsOf(row.at(2))), error.empty() ? resultOk : resultRuleBroken);
        EXPECT_EQ(tool.stored(), row.at(3));
        EXPECT_EQ(tool.error(), error);
    }

    const Words row;
    Tool tool;
};

std::string labelOf(const testing::TestParamInfo<RowHeard>& test) {
    return std::get<0>(test.param).at(0) + (std::get<1>(test.param) ? "_Heard" : "");
}

const auto optionRows = rowsOf(
    R"(EverySpelling     | strict | --level=1 -level=2 —level=3 -—lev=4 --l_5 --level 6 --l= 7 | level=1|2|3|4|5|6|7 |
AttachedNegative  | strict | --level=-5       | level=-5 |
EmptyName         | strict | --=v             | | Unknown option '--=v'
OneDashEmptyName  | strict | -=               | | Unknown option '-='
TwoEmDashes       | strict | ——               | | Unknown option '——'
ThirdDash         | strict | ---o             | | Unknown option '---o'
EmptyNameSkipped  | others | --=v             | | Unknown option '--=v'
FailureEndsIt     | strict | --l=1 --q --l=2  | level=1 | Unknown option: --q
NoValueLeft       | strict | --lev            | | Option 'level' requires a value in argument: '--lev'
NoValueInEquals   | strict | -l=              | | Option 'level' requires a value in argument: '-l='
NextIsEmpty       | strict | -l ''            | | Option 'level' requires a value in argument: '-l'
NextHasADash      | strict | --lev -5         | | Option 'level' received value from the next argument: '-5', but it seems to be an option. Use '-option=value' declaration form or make sure that value is not missed
NextIsTerminator  | strict | --path= --       | | Option 'path' received value from the next argument: '--', but it seems to be an option. Use '-option=value' declaration form or make sure that value is not missed
NextHasAnEmDash   | strict | --path —x        | path=—x |
Tie               | strict | --ver=1          | | Ambiguous option 'ver' in argument: '--ver=1', could be: 'verbose', 'version'
TieWithinAnItem   | strict | --wi             | | Ambiguous option 'wi' in argument: '--wi', could be: 'width', 'widths'
TieOfNoForms      | strict | --no             | | Ambiguous option 'no' in argument: '--no', could be: 'no-color', 'no-z', 'no-log', 'no-no-log'
ExactBeatsLonger  | strict | --width=1        | width=1 |
SwitchWithValue   | strict | --verb=x         | | Option 'verbose'does not requires a value in argument: '--verb=x'
SwitchWithEquals  | strict | --verbose= -verb --verbose_ | verbose(3) |
Boolean           | strict | --color --no-color --no-c --color= | color=1|0|0|1 |
BooleanWithValue  | strict | --no-col=1       | | Option 'color' is boolean and should be declared in form '--option' or '--no-option' in argument: '--no-col=1'
BooleanNamedNo    | strict | --no-log --no-no-log | no-log=0|0 |
ItemBeatsNoForm   | strict | --no-z --z       | no-z(1) z=1 |
Pieces            | strict | --ids=:1::0x10:  | ids=1|0x10(1) |
NoPiece           | strict | --ids ::         | | No value parsed in argument '::' for option 'ids'
BadPiece          | strict | --ids 1:x:3      | | Value validation problem in argument '--ids': Option 'ids' can not parse 'x' value, requires a type 'unsigned 64 bit or hex' here.
Uncut             | strict | --path=a,b --path__c_d --path==a=b | path=a,b|c d|=a=b |
AllowedValues     | strict | --word=marb,market,old | word=marble|market|old(1) |
AllowedTie        | strict | --word=mar       | | Value validation problem in argument '--word=mar': Ambiguous value for option 'word'. Possible values follows: 'marble', 'market'
NotAllowed        | strict | --word MARB      | | Value validation problem in argument '--word': Option 'word' does not allow value 'MARB'. Possible values follows: 'marble', 'market'
Terminator        | strict | --z -- --z -- '' -q | z=1 -- --z --  -q |
TerminatorLast    | strict | --z --           | z=1 |
UnknownIsSkipped  | others | a '' - --q=1 --ids=1:2 -- b | ids=1|2(1) -- b |)");

class OptionLine : public CommandLine {};

TEST_P(OptionLine, HasItsOutcome) {
    tool.option("level,l", vtS32);
    tool.option("color", vtBool);
    tool.option("verbose", vtNull);
    tool.option("version", vtNull);
    tool.option("word").allowValue("marble").allowValue("market").allowDeprecatedValue("old", "");
    tool.option("path").tokenize(0);
    tool.option("ids", vtU64).tokenize(':');
    tool.option("width,widths", vtDouble);
    tool.option("no-z", vtNull);
    tool.option("z", vtBool);
    tool.option("no-log", vtBool);
    tool.option("-odd", vtNull);
    expectOutcome();
}

INSTANTIATE_TEST_SUITE_P(Rows,
                         OptionLine,
                         testing::Combine(testing::ValuesIn(optionRows), testing::Bool()),
                         labelOf);

const auto positionalRows = rowsOf(
    R"(Anything         | strict        | a --q - '' b,c —x   | file=a|--q|-|b|c|—x |
OptionsFirst     | strict        | --verb a --num=1    | verbose(1) num=1 file=a |
DashRefused      | strict noDash | a -x                | file=a | Unknown option: -x
DashSkipped      | noDash        | -x '' —x b          | file=—x|b(3) |
Rest             | strict rest   | --verb a --num -- zarnoption=zarnlogenable=1 -x | verbose(1) file=a|--num|--|zarnoption=zarnlogenable=1|-x |
RestWithoutDash  | noDash rest   | a -x                | file=a|-x |
NotOffered       | strict        | a -- b              | file=a -- b |
Offered          | strict behind | -- b --num=1        | file=b|--num=1 -- b --num=1 |
DashOffered      | behind noDash rest | -- -b c        | file=-b|c -- -b c |
StoredIfRefused  | behind        | -- b , c            | file=b -- b , | No value parsed in argument ',' for option 'file'
ValuesStayWhole  | whole         | a,b ,               | file=a,b|, |)");

class PositionalLine : public CommandLine {};

TEST_P(PositionalLine, HasItsOutcome) {
    tool.option("verbose", vtNull);
    tool.option("num", vtS32);
    tool.option("file").positional();
    tool.option("never").positional();
    expectOutcome();
}

INSTANTIATE_TEST_SUITE_P(Rows,
                         PositionalLine,
                         testing::Combine(testing::ValuesIn(positionalRows), testing::Bool()),
                         labelOf);

TEST(UnknownArgument, IsQuotedAsItStands) {
    Tool tool(flagUnknownIsError);
    const auto errorOf = [&tool](const std::string& argument) {
        EXPECT_EQ(tool.parse({argument}), resultRuleBroken);
        return tool.error();
    };
    EXPECT_EQ(errorOf("--=v"), "Unknown option: --=v") << "nothing is declared yet";
    tool.option("level", vtS32);
    for (const char* const argument : {"",
                                       "-",
                                       "---level",
                                       "\xE2\x80",
                                       "-\xFF\n\x1B",
                                       "--LEVEL=3",
                                       "--levle=3",
                                       "-5",
                                       "zarnoption=zarnlogenable=1 "}) {
        EXPECT_EQ(errorOf(argument), std::string("Unknown option: ") + argument);
    }
    const std::string unknown = tool.error();
    EXPECT_EQ(tool.parse({"--level=1"}), resultOk);
    EXPECT_EQ(tool.error(), unknown) << "success leaves it";
}

TEST(NamelessItem, CannotBeStored) {
    Tool tool;
    tool.option("").positional();
    EXPECT_EQ(tool.error(), "");
    EXPECT_EQ(tool.parse({"a"}), resultException);
    EXPECT_NE(tool.error(), "");
}

TEST(ArgumentVector, EndsAtItsCountOrAtANullEntry) {
    const char* const argv[] = {nullptr, "--level=1", "--level=2", nullptr, "--level=3"};
    for (int count = -1; count <= 5; ++count) {
        Tool tool;
        tool.option("level", vtS32).defaultValue(7);
        EXPECT_EQ(tool->parseArgsVector(count, count < 2 ? nullptr : argv, tool.result), resultOk);
        EXPECT_EQ(tool.values("level"), count < 2 ? "7" : count == 2 ? "1" : "1|2");
    }
}

// Like a client's own: it is refused before any operation is called.
class ForeignResult final : public IParseResult {
public:
    void destroy() override { ADD_FAILURE(); }
    bool present(const char*, int, int) override { return touch().status == statusFound; }
    Value get(const char*, int, int) override { return touch(); }
    Value next(const char*) override { return touch(); }
    int nextPosition() override { return touch().position; }
    int getFirstArgument(const char**) override { return touch().status; }
    int getNextArgument(const char**) override { return touch().status; }

private:
    static Value touch() {
        ADD_FAILURE();
        return {};
    }
};

TEST(WrongPointers, GiveResultException) {
    Tool tool;
    tool.option("level", vtS32).defaultValue(7);
    const char* const argv[] = {"tool", "--level=1"};
    ForeignResult foreign;

    EXPECT_EQ(createParser(nullptr, 0), resultException);
    EXPECT_EQ(tool->createResult(nullptr), resultException);
    EXPECT_EQ(tool->parseArgsVector(2, argv, nullptr), resultException);
    EXPECT_EQ(tool->parseStream("--level=1", nullptr), resultException);
    EXPECT_EQ(tool->parseArgsVector(2, argv, &foreign), resultException);
    EXPECT_EQ(tool->parseArgsVector(2, nullptr, tool.result), resultException);

    EXPECT_EQ(tool.stored(), "level=7(0)");
    EXPECT_NE(tool.error(), "");
}

TEST(Declarations, AreFoundByNameKindAndSection) {
    Tool tool;
    tool->option("level,l", "", vtS32, "main:Main options");
    tool->action("run", "", vtNull, "");

    EXPECT_TRUE(tool->isOptionDeclared("l", false, nullptr));
    EXPECT_TRUE(tool->isOptionDeclared("level", false, "main"));
    EXPECT_TRUE(tool->isOptionDeclared("run", true, ""));
    EXPECT_FALSE(tool->isOptionDeclared("level", false, "main:Main options"));
    EXPECT_FALSE(tool->isOptionDeclared("run", false, nullptr));
    EXPECT_FALSE(tool->isOptionDeclared("leve", false, nullptr));
    EXPECT_FALSE(tool->isOptionDeclared(nullptr, false, nullptr));
}

}  // namespace
}  // namespace zarn_3_3
