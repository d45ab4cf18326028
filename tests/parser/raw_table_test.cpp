// The parsing steps behind the public operations, called by their numbers in the table, as derived
// tools do. What is left in the caller's vector tells where a parse stopped.

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/raw_table.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::operationAt;
using testing_support::Tool;
using testing_support::Words;

using ParseVector = int(void*, Words&, IParseResult*);                              // slot 22
using Phase = int(void*, const std::string&, Words&, IParseResult*, std::string&);  // 23 and 24

struct Row {
    int flags;
    Words args;
    int code;
    Words left;
    const char* stored;  // "<values of level>;<values of file>"
};

constexpr int strict = flagUnknownIsError | flagPositionalWithoutDash;
constexpr int rest = flagPositionalTakesRest;

// The handler refuses 13 and throws at 14 and "-throw".
const Row rows[] = {
    {strict, {"--l=1", "--level", "2", "5"}, resultOk,         {},                     "1|2;5"},
    {strict, {"--level=1", "--", "a"},       resultOk,         {"--", "a"},            "1;"   },
    {strict, {"--level=1", "-q", "5"},       resultRuleBroken, {"-q", "5"},            "1;"   },
    {strict, {"5", "--level=13", "5"},       resultVetoed,     {"--level=13", "5"},    ";5"   },
    {rest,   {"5", "6", "13", "7"},          resultVetoed,     {"13", "7"},            ";5|6" },
    {strict, {"5", "--level", "14", "5"},    -1,               {"--level", "14", "5"}, ";5"   },
    {rest,   {"5", "6", "14", "7"},          -1,               {"14", "7"},            ";5|6" },
    {strict, {"5", "-throw", "5"},           -1,               {"-throw", "5"},        ";5"   },
};

bool answerTo(const std::string& event) {
    if (event == "value level=14" || event == "value file=14" || event == "unknown -throw") {
        throw std::runtime_error("thrown");
    }
    return event != "value level=13" && event != "value file=13";
}

TEST(PhaseOneAndParseVector, LeaveWhatWasNotParsed) {
    for (const Row& row : rows) {
        for (const bool isPhase : {true, false}) {
            SCOPED_TRACE(testing::PrintToString(row.args) + (isPhase ? " in the phase" : ""));
            Tool tool(row.flags);
            tool.option("level", vtS32);
            tool.option("file", vtS32).positional();
            tool.listen().answer = answerTo;
            Words args = row.args;
            int code = -1;
            std::string error;
            try {
                code = isPhase ? operationAt<Phase>(tool.parser, 23)(
                                     tool.parser, "--", args, tool.result, error)
                               : operationAt<ParseVector>(tool.parser, 22)(
                                     tool.parser, args, tool.result);
            } catch (const std::runtime_error& caught) {
                EXPECT_STREQ(caught.what(), "thrown");
            }
            EXPECT_EQ(code, row.code);
            EXPECT_EQ(args, row.left);
            EXPECT_EQ((isPhase ? error : tool.error()).empty(), code <= resultOk);
            EXPECT_EQ(tool.values("level") + ";" + tool.values("file"), row.stored);
            const bool keepsPlain = !isPhase && row.left == Words{"--", "a"};
            const char* plain = nullptr;
            EXPECT_EQ(tool.result->getFirstArgument(&plain) == statusFound, keepsPlain);
        }
    }
}

TEST(Phases, NeedNoMoreThanTheyUse) {
    Tool tool(flagUnknownIsError);
    tool->action("run", "", vtNull, "");
    const auto one = operationAt<Phase>(tool.parser, 23);
    const auto two = operationAt<Phase>(tool.parser, 24);
    Words args{"+", "--run"};
    std::string error;
    EXPECT_EQ(one(tool.parser, "+", args, nullptr, error), resultOk);
    EXPECT_EQ(one(tool.parser, "--", args, nullptr, error), resultRuleBroken);
    EXPECT_EQ(error, "Unknown option: +");
    args = {"--run"};
    EXPECT_THROW(one(tool.parser, "--", args, nullptr, error), std::invalid_argument);
    args = {"+", "--run"};
    tool.option("level", vtS32).defaultValue(1);
    EXPECT_EQ(tool.parse({}), resultOk) << "comes not so far";
    EXPECT_EQ(two(tool.parser, "+", args, tool.result, error), resultRuleBroken);
    EXPECT_EQ(error, "No action defined.");
    EXPECT_EQ(args, (Words{"+", "--run"}));
    EXPECT_EQ(tool.error(), "");
}

}  // namespace
}  // namespace zarn_3_3
