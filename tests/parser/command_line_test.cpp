// What a command line means, and how it is refused: whole texts, since tools compare them.

#include <gtest/gtest.h>

#include <iostream>
#include <map>

#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::rowsOf;
using testing_support::Tool;
using testing_support::Words;
using testing_support::wordsOf;

const std::map<std::string, int> flags{
    {"strict", flagUnknownIsError            },
    {"behind", flagPositionalBehindTerminator},
    {"noDash", flagPositionalWithoutDash     },
    {"rest",   flagPositionalTakesRest       },
    {"whole",  flagValuesStayWhole           },
    {"others", ~0x3E                         },
    {"file",   0                             }, // a positional item is declared
};

// The flags, the line, what it stores and how it is refused.
const char* const lines =
    R"(strict | --level=1 -level=2 —level=3 -—lev=-4 --l_5 --level 6 --l= 7 | level=1|2|3|-4|5|6|7
strict | ——               | | Unknown option '——'
others | --=v             | | Unknown option '--=v'
strict | --l=1 --q --l=2  | level=1 | Unknown option: --q
others | a '' - --q=1 --ids=1:2 -- b | ids=1|2(1) -- b
strict | -l ''            | | Option 'level' requires a value in argument: '-l'
strict | --lev -5         | | Option 'level' received value from the next argument: '-5', but it seems to be an option. Use '-option=value' declaration form or make sure that value is not missed
strict | --path —x --path__c_d --path==a,b | path=—x|c d|=a,b
strict | --ver=1          | | Ambiguous option 'ver' in argument: '--ver=1', could be: 'verbose', 'version'
strict | --no             | | Ambiguous option 'no' in argument: '--no', could be: 'no-color', 'no-z'
strict | --verb=x         | | Option 'verbose'does not requires a value in argument: '--verb=x'
strict | --verbose= -verb --no-z --z | verbose(2) no-z(1) z=1
strict | --color --no-color --no-c --color= | color=1|0|0|1
strict | --no-col=1       | | Option 'color' is boolean and should be declared in form '--option' or '--no-option' in argument: '--no-col=1'
strict | --ids=:1::0x10:  | ids=1|0x10(1)
strict | --ids ::         | | No value parsed in argument '::' for option 'ids'
strict | --ids 1:x:3      | | Value validation problem in argument '--ids': Option 'ids' can not parse 'x' value, requires a type 'unsigned 64 bit or hex' here.
strict | --word=marb,market,o | word=marble|market|o(1)
strict | --word=mar       | | Value validation problem in argument '--word=mar': Ambiguous value for option 'word'. Possible values follows: 'marble', 'market'
strict | --word MARB      | | Value validation problem in argument '--word': Option 'word' does not allow value 'MARB'. Possible values follows: 'marble', 'market'
strict | --z -- --z -- '' -q | z=1 -- --z --  -q
file strict             | --verb a --level=1 --q - '' b,c —x | level=1 verbose(1) file=a|--q|-|b|c|—x
file strict noDash      | a -x                | file=a | Unknown option: -x
file noDash             | -x '' —x b          | file=—x|b(3)
file strict rest        | --verb a --level -- zarnoption=zarnlogenable=1 -x | verbose(1) file=a|--level|--|zarnoption=zarnlogenable=1|-x
file strict behind      | -- b --level=1        | file=b|--level=1 -- b --level=1
file behind noDash rest | -- -b c        | file=-b|c -- -b c
file behind             | -- b , c            | file=b -- b , | No value parsed in argument ',' for option 'file'
file whole              | a,b ,               | file=a,b|,)";

// Each line is parsed alone and with somebody listening: without a handler the library binds an
// item where it stands, with one it binds a copy.
class CommandLine : public testing::TestWithParam<bool> {};

TEST_P(CommandLine, HasItsOutcome) {
    for (const Words& row : rowsOf(lines, 4)) {
        SCOPED_TRACE(row[1]);
        int flagWord = 0;
        for (const std::string& name : wordsOf(row[0])) {
            flagWord |= flags.at(name);
        }
        Tool tool(flagWord);
        tool.option("level,l", vtS32);
        tool.option("color", vtBool);
        tool.option("verbose", vtNull);
        tool.option("version", vtNull);
        tool.option("word").allowValue("marble").allowValue("market").allowDeprecatedValue("o", "");
        tool.option("path").tokenize(0);
        tool.option("ids", vtU64).tokenize(':');
        tool.option("no-z", vtNull);
        tool.option("z", vtBool);
        tool.option("-odd", vtNull);
        if (row[0].find("file") == 0) {
            tool.option("file").positional();
        }
        if (GetParam()) {
            tool.listen();
        }
        const CapturedStream warnings(std::cerr);
        EXPECT_EQ(tool.parse(wordsOf(row[1])), row[3].empty() ? resultOk : resultRuleBroken);
        EXPECT_EQ(tool.stored(), row[2]);
        EXPECT_EQ(tool.error(), row[3]);
    }
}

INSTANTIATE_TEST_SUITE_P(Heard, CommandLine, testing::Bool());

// "alpha" and "beta" may be used together, and "beta" and "gamma". A default asks for an action,
// but is never refused.
const char* const actionLines =
    R"(-- q                   | No action defined.
--alpha --a
--beta --alpha --of-both
--tagged --b --alpha
--global --of-beta --beta
--zeta --a             | Action '-zeta' and action '-alpha' were defined, but only one action possible.
--alpha --beta --gamma | Action '-gamma' and action '-alpha' were defined, but only one action possible.
--zeta --of-both --m   | Action '-zeta' doesn't accept option '-of-beta'
--alpha --by-synonym   | Action '-alpha' doesn't accept option '-by-synonym')";

TEST(ActionRules, HoldForWhatWasGiven) {
    for (const Words& row : rowsOf(actionLines, 2)) {
        Tool tool;
        for (const char* const names : {"alpha,a", "beta,b", "gamma", "zeta"}) {
            tool->action(names, "", vtNull, "");
        }
        tool->modifier("of-beta", "beta", "", vtNull, "").synonym("m");
        tool->modifier("of-both", "alpha,beta", "", vtNull, "");
        tool->modifier("by-synonym", "a", "", vtNull, "");
        tool->modifier("depth", "zeta", "", vtString, "").defaultValue("3");
        tool.option("global", vtNull);
        tool.option("tagged", vtNull).tag("beta");
        EXPECT_TRUE(tool->allowSimultaneousActions({"alpha", "beta"}));
        EXPECT_TRUE(tool->allowSimultaneousActions({"gamma", "beta"}));

        const int code = tool.parse(wordsOf(row[0]));

        EXPECT_EQ(code, row[1].empty() ? resultOk : resultRuleBroken);
        EXPECT_EQ(tool.error(), row[1]) << row[0];
    }
}

// Support reads the log, and scripts of theirs cut it up.
TEST(Trace, FollowsALineFromTheSwitchInFront) {
    Tool tool;
    tool.option("ids", vtS32);
    const CapturedStream log(std::cout);
    EXPECT_EQ(tool.parse({"zarnoption=zarnlogenable=1", "--id", "1", "-q", "--", "y"}), resultOk);
    EXPECT_EQ(tool.parse({"--ids=1", "zarnoption=zarnlogenable=1"}), resultOk);

    EXPECT_EQ(log.text(),
              R"(PositionalOptionsParser: recognizing argument '--id'
AbbreviationParser: recognizing argument '--id'
AbbreviationParser: best match option for 'id' in argument '--id' is 'ids'
AbbreviationParser: parsing argument '--id'
AbbreviationParser: detected option: 'ids'
AbbreviationParser: no value in the same argument, looking next
AbbreviationParser: got value from the next argument: '1'
AbbreviationParser: sent event on option parsed
AbbreviationParser: adding values to result container:
AbbreviationParser: using tokenizer on char: ','
AbbreviationParser: value is: '1'
AbbreviationParser: sent event on value parsed, option: 'ids', value: '1'
AbbreviationParser: stored option to result container.
AbbreviationParser: removing argument: '--id'
AbbreviationParser: removing argument: '1'
PositionalOptionsParser: recognizing argument '-q'
AbbreviationParser: recognizing argument '-q'
ignoring -q
collectNonparsingArguments: stored argument: 'y'
)");
}

TEST(EmptyVocabulary, QuotesWhatItDoesNotKnow) {
    Tool tool(flagUnknownIsError);
    for (const char* const argument : {"", "-", "--=v", "\xE2\x80", "-\xFF\n\x1B"}) {
        EXPECT_EQ(tool.parse({argument}), resultRuleBroken);
        EXPECT_EQ(tool.error(), std::string("Unknown option: ") + argument);
    }
    EXPECT_EQ(tool.parse({"--", "a"}), resultOk);
    tool.option("").positional();
    EXPECT_EQ(tool.parse({"a"}), resultException) << "an item without a name cannot be stored";
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

TEST(Declaration, IsRefusedForTooManyNamesAndForTakenOnes) {
    const std::pair<const char*, bool> rows[] = {
        {"new,b,cd",   true },
        {"new,b,cde",  false},
        {"new,b,c,d",  false},
        {"new,level",  false},
        {"new,levels", true },
        {"new,new",    true },
    };
    for (const auto& [names, isDeclared] : rows) {
        Tool tool(flagUnknownIsError);
        tool.option("level", vtS32);
        tool->option(names, "", vtS32, "");
        EXPECT_EQ(tool->isOptionDeclared("new", false, nullptr), isDeclared) << names;
        EXPECT_EQ(tool.parse({"--level=1"}), resultOk) << names;
    }
}

TEST(NullTexts, AreEmptyOrAddNothing) {
    Tool tool(flagUnknownIsError);
    tool.option("level", vtS32).synonym(nullptr).tag(nullptr);
    tool->modifier("speed", nullptr, nullptr, vtS32, nullptr);
    tool->option(nullptr, nullptr, vtString, nullptr).positional();
    EXPECT_FALSE(tool->isOptionDeclared(nullptr, false, nullptr));
    EXPECT_EQ(tool->parseStream(nullptr, tool.result), resultOk);
    EXPECT_EQ(tool.parse({"--level=1", "--speed=2"}), resultOk) << "belongs to no action";
    EXPECT_EQ(tool.stored(), "level=1");
    Tool same(flagUnknownIsError);
    same.option("level", vtS32);
    same->modifier("speed", "", "", vtS32, "");
    same->option("", "", vtString, "");
    EXPECT_STREQ(tool->getDescription(false), same->getDescription(false));
    EXPECT_EQ(tool.parse({"file"}), resultException) << "without a name";
}

// Like a client's own: it is refused before any operation is called.
class ForeignResult final : public IParseResult {
public:
    void destroy() override { throw this; }
    bool present(const char*, int, int) override { throw this; }
    Value get(const char*, int, int) override { throw this; }
    Value next(const char*) override { throw this; }
    int nextPosition() override { throw this; }
    int getFirstArgument(const char**) override { throw this; }
    int getNextArgument(const char**) override { throw this; }
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

}  // namespace
}  // namespace zarn_3_3
