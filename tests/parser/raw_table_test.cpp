// The parsing steps behind the public operations, called by their numbers in the table, as derived
// tools do. What is left in the caller's vector tells where a parse stopped.

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <stdexcept>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

using Texts = testing_support::Words;

constexpr std::size_t parseVectorSlot = 22;
constexpr std::size_t phaseOneSlot = 23;
constexpr std::size_t phaseTwoSlot = 24;

template <typename Function>
Function* operationAt(const void* object, std::size_t slot) {
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return reinterpret_cast<Function*>(table[slot]);
}

int parseVector(Tool& tool, Texts& args) {
    using ParseVector = int(void*, Texts&, IParseResult*);
    return operationAt<ParseVector>(tool.parser, parseVectorSlot)(tool.parser, args, tool.result);
}

int runPhase(std::size_t slot,
             Tool& tool,
             const std::string& terminator,
             Texts& args,
             IParseResult* result,
             std::string& error) {
    using Phase = int(void*, const std::string&, Texts&, IParseResult*, std::string&);
    return operationAt<Phase>(tool.parser, slot)(tool.parser, terminator, args, result, error);
}

struct Row {
    const char* label;
    int flags;
    Texts args;
    int code;
    Texts left;
    const char* stored;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.label; }

constexpr int strict = flagUnknownIsError | flagPositionalWithoutDash;
constexpr int rest = flagPositionalTakesRest;

const Row rows[] = {
    {"Everything",    strict,                    {"--level=1", "--level", "2", "5"}, resultOk,         {},                     "level=1|2 file=5"},
    {"LogSwitch",     strict,                    {"zarnoption=zarnlogenable=1"},     resultOk,         {},                     ""                },
    {"Terminator",    strict,                    {"--level=1", "--", "a"},           resultOk,         {"--", "a"},            "level=1 -- a"    },
    {"Unknown",       strict,                    {"--level=1", "-q", "5"},           resultRuleBroken, {"-q", "5"},            "level=1"         },
    {"Skipped",       flagPositionalWithoutDash, {"-q", "5"},                        resultOk,         {},                     "file=5"          },
    {"NextIsBad",     strict,                    {"--level", "x", "5"},              resultRuleBroken, {"--level", "x", "5"},  ""                },
    {"Vetoed",        strict,                    {"5", "--level=13", "5"},           resultVetoed,     {"--level=13", "5"},    "file=5"          },
    {"Rest",          rest,                      {"5", "--", "6"},                   resultRuleBroken, {"--", "6"},            "file=5"          },
    {"RestVetoed",    rest,                      {"5", "6", "13", "7"},              resultVetoed,     {"13", "7"},            "file=5|6"        },
    {"Throws",        strict,                    {"5", "--level", "14", "5"},        -1,               {"--level", "14", "5"}, "file=5"          },
    {"RestThrows",    rest,                      {"5", "6", "14", "7"},              -1,               {"14", "7"},            "file=5|6"        },
    {"UnknownThrows", strict,                    {"5", "-throw", "5"},               -1,               {"-throw", "5"},        "file=5"          },
};

class RawTable : public testing::TestWithParam<Row> {
protected:
    RawTable() : tool(GetParam().flags), args(GetParam().args) {
        tool.option("level", vtS32);
        tool.option("file", vtS32).positional();
        tool.listen().answer = [](const std::string& event) {
            const auto endsWith = [&](const std::string& end) {
                return event.size() > end.size() && event.substr(event.size() - end.size()) == end;
            };
            if (endsWith("=14") || endsWith("-throw")) {
                throw std::runtime_error("thrown");
            }
            return !endsWith("=13");
        };
    }

    // -1 when the handler's exception came through.
    template <typename Operation>
    void expectOutcome(Operation operation) {
        int code = -1;
        try {
            code = operation();
        } catch (const std::runtime_error& caught) {
            EXPECT_STREQ(caught.what(), "thrown");
        }
        EXPECT_EQ(code, GetParam().code);
        EXPECT_EQ(args, GetParam().left);
    }

    Tool tool;
    Texts args;
};

TEST_P(RawTable, ParseVectorLeavesWhatWasNotParsed) {
    expectOutcome([&] { return parseVector(tool, args); });
    EXPECT_EQ(tool.stored(), GetParam().stored);
}

TEST_P(RawTable, PhaseOneLeavesWhatWasNotParsed) {
    std::string error;
    expectOutcome([&] { return runPhase(phaseOneSlot, tool, "--", args, tool.result, error); });
    EXPECT_EQ(error.empty(), GetParam().code <= resultOk);
    EXPECT_EQ(tool.error(), "");
}

INSTANTIATE_TEST_SUITE_P(Rows, RawTable, testing::ValuesIn(rows), [](const auto& test) {
    return std::string(test.param.label);
});

TEST(PhaseOne, StopsAtTheTerminatorThatItIsGiven) {
    Tool tool;
    tool.option("level", vtS32);
    Texts args{"--level=1", "+", "--", "--level=2"};
    std::string error;
    EXPECT_EQ(runPhase(phaseOneSlot, tool, "+", args, tool.result, error), resultOk);
    EXPECT_EQ(args, (Texts{"+", "--", "--level=2"}));
}

TEST(PhaseOne, NeedsAResultOnlyToStore) {
    Tool tool(flagUnknownIsError);
    tool.option("level", vtS32);
    Texts args{"-q"};
    std::string error;
    EXPECT_EQ(runPhase(phaseOneSlot, tool, "--", args, nullptr, error), resultRuleBroken);
    EXPECT_EQ(error, "Unknown option: -q");
}

TEST(PhaseTwo, ChecksTheResultAlone) {
    Tool tool;
    tool->action("run", "", vtNull, "");
    tool.option("level", vtS32).defaultValue(1);
    EXPECT_EQ(tool.parse({}), resultOk);
    Texts args{"--run"};
    std::string error;
    EXPECT_EQ(runPhase(phaseTwoSlot, tool, "--", args, tool.result, error), resultRuleBroken);
    EXPECT_EQ(error, "No action defined.");
    EXPECT_EQ(args, Texts{"--run"});
    EXPECT_EQ(tool.error(), "");
}

}  // namespace
}  // namespace zarn_3_3
