// The debug log, line by line: support reads it, and scripts of theirs cut it up.

#include <gtest/gtest.h>

#include <iostream>

#include "log/zarn_log.h"
#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

constexpr const char* logSwitch = "zarnoption=zarnlogenable=1";

class Trace : public testing::Test {
protected:
    Trace() : tool(flagUnknownIsError | flagPositionalBehindTerminator) {
        tool.option("verbose", vtNull);
        tool.option("version", vtNull);
        tool.option("level,l", vtS32).tokenize(0);
        tool.option("ids", vtS32);
    }

    // The log of the line.
    std::string logOf(testing_support::Words arguments, int code) {
        const CapturedStream log(std::cout);
        arguments.insert(arguments.begin(), logSwitch);
        EXPECT_EQ(tool.parse(arguments), code);
        return log.text();
    }

    Tool tool;
};

TEST_F(Trace, FollowsALineThroughBothRecognizers) {
    tool.option("file").positional();
    tool.parse({"--version=1"});  // the text of this failure shows in the lines behind "--"

    EXPECT_EQ(logOf({"--id", "1,2", "x", "--", "-y"}, resultOk),
              R"(PositionalOptionsParser: recognizing argument '--id'
AbbreviationParser: recognizing argument '--id'
AbbreviationParser: best match option for 'id' in argument '--id' is 'ids'
AbbreviationParser: parsing argument '--id'
AbbreviationParser: detected option: 'ids'
AbbreviationParser: no value in the same argument, looking next
AbbreviationParser: got value from the next argument: '1,2'
AbbreviationParser: sent event on option parsed
AbbreviationParser: adding values to result container:
AbbreviationParser: using tokenizer on char: ','
AbbreviationParser: value is: '1'
AbbreviationParser: sent event on value parsed, option: 'ids', value: '1'
AbbreviationParser: value is: '2'
AbbreviationParser: sent event on value parsed, option: 'ids', value: '2'
AbbreviationParser: stored option to result container.
AbbreviationParser: removing argument: '--id'
AbbreviationParser: removing argument: '1,2'
PositionalOptionsParser: recognizing argument 'x'
AbbreviationParser: recognizing argument 'x'
PositionalOptionsParser: parsing argument 'x'
PositionalOptionsParser: option is 'verbose'
PositionalOptionsParser: adding values to result container:
PositionalOptionsParser: using tokenizer on char: ','
PositionalOptionsParser: value is: 'x'
PositionalOptionsParser: sent event on value parsed, option: 'file', value: 'x'
PositionalOptionsParser: stored option to result container.
PositionalOptionsParser: removing argument: 'x'
collectNonparsingArguments: stored argument: '-y'
PositionalOptionsParser: recognizing argument '-y'
collectNonparsingArguments: recognize result: 0, message: Option 'version'does not requires a value in argument: '--version=1'
PositionalOptionsParser: parsing argument '-y'
PositionalOptionsParser: option is 'verbose'
PositionalOptionsParser: adding values to result container:
PositionalOptionsParser: using tokenizer on char: ','
PositionalOptionsParser: value is: '-y'
PositionalOptionsParser: sent event on value parsed, option: 'file', value: '-y'
PositionalOptionsParser: stored option to result container.
PositionalOptionsParser: removing argument: '-y'
collectNonparsingArguments: parse result: 0, message: Option 'version'does not requires a value in argument: '--version=1'
)");
}

TEST_F(Trace, OfAPlainArgumentThatNobodyTakes) {
    EXPECT_EQ(logOf({"--", "y"}, resultOk),
              R"(collectNonparsingArguments: stored argument: 'y'
PositionalOptionsParser: recognizing argument 'y'
collectNonparsingArguments: recognize result: 1, message: 
)");
}

TEST_F(Trace, OfAnUnknownAndAnAmbiguousArgument) {
    tool.listen().answer = [](const std::string& event) { return event != "unknown a"; };

    EXPECT_EQ(logOf({"a", "--ver"}, resultRuleBroken),
              R"(PositionalOptionsParser: recognizing argument 'a'
AbbreviationParser: recognizing argument 'a'
ignoring a
PositionalOptionsParser: recognizing argument '--ver'
AbbreviationParser: recognizing argument '--ver'
AbbreviationParser: failed to get best match for 'ver' in argument '--ver':Ambiguous option, possible options are: 'verbose', 'version'
AbbreviationParser: parsing argument '--ver'
)");
}

TEST_F(Trace, OfARefusedValue) {
    tool.listen().answer = [](const std::string& event) { return event != "value level=3"; };

    EXPECT_EQ(logOf({"--l=3"}, resultVetoed),
              R"(PositionalOptionsParser: recognizing argument '--l=3'
AbbreviationParser: recognizing argument '--l=3'
AbbreviationParser: best match option for 'l' in argument '--l=3' is 'l'
AbbreviationParser: parsing argument '--l=3'
AbbreviationParser: detected option: 'level'
AbbreviationParser: value from the same argument taken: '3'
AbbreviationParser: sent event on option parsed
AbbreviationParser: adding values to result container:
AbbreviationParser: not using tokenizer
AbbreviationParserValue '3' is not valid for option 'level' in argument '--l=3' One of the handler signaled the value is not valid.
)");
}

// The last line of each refusal; the empty name is the one that is not logged.
TEST_F(Trace, EndsWithTheErrorOfARefusal) {
    for (const char* const argument : {"--level", "--level=x", "--version=1", "--ids=,"}) {
        std::string log = logOf({argument}, resultRuleBroken);
        log.erase(0, log.rfind('\n', log.size() - 2) + 1);
        EXPECT_EQ(log, "AbbreviationParser: " + tool.error() + "\n");
    }
    EXPECT_EQ(logOf({"--=v"}, resultRuleBroken).find("Unknown"), std::string::npos);
}

TEST_F(Trace, IsSwitchedByEachLineAlone) {
    using internal::zarnLogEnabled;
    const CapturedStream log(std::cout);
    tool.parse({logSwitch});
    EXPECT_TRUE(zarnLogEnabled);
    tool.parse({});
    EXPECT_TRUE(zarnLogEnabled) << "too short to begin a line";
    tool.parseText("");
    EXPECT_FALSE(zarnLogEnabled);
    tool.parseText((std::string(" ") + logSwitch + "\n").c_str());
    EXPECT_TRUE(zarnLogEnabled);
    tool.parse({"--verbose", logSwitch});
    EXPECT_FALSE(zarnLogEnabled);
    EXPECT_EQ(log.text(), "");
}

}  // namespace
}  // namespace zarn_3_3
