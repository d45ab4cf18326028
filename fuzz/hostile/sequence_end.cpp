// The sequence of numbers comes to its end in the middle of a parse.

#include <climits>
#include <fstream>

#include "hostile.h"
#include "recognizers/argument_parser.h"
#include "support/expectation.h"
#include "support/stored.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using checking::Stored;
using testing_support::Tool;
using testing_support::Words;

const std::vector<std::string> names{"level", "l", "name", "dry", "file", "option-file"};

const Words lines[] = {
    {            },
    {                    "--level=1"            },
    {     "--level=1,2,3",             "-l=4"},
    {                         "--dry",      "--dry", "--dry"},
    {                        "--name=a",        "b,c", "d"},
    {                "--",          "a", "b", "c", "d"},
    {"--level=1",          "--level=x"},
    {                         "--dry",   "--unknown"},
    { "--name=veto"      },
    {"--option-file=two-levels", "--dry"},
    {            "--dry=x",      "--level=1"},
};

class Refuser final : public EventHandler {
    bool onValueParse(const char*, const Value& value) override {
        return std::string(value.text) != "veto";
    }
};

struct Outcome {
    int code = resultOk;
    int draws = 0;
    Stored stored;
};

class Client {
public:
    Client() {
        tool.option("level,l", vtS32).defaultValue(7);
        tool.option("name").defaultValue("somebody");
        tool.option("dry", vtNull);
        tool.option("file").positional();
        tool->addOptionFileOption("", "");
        tool->addHandler(&refuser);
    }

    Outcome parse(const Words& line, int firstNumber) {
        IArgumentParser::m_idx = firstNumber;
        Outcome outcome;
        outcome.code = tool.parse(line);
        outcome.draws = IArgumentParser::m_idx - firstNumber;
        outcome.stored = checking::readStored(*tool.result, names, firstNumber - 1);
        return outcome;
    }

    Tool tool{flagUnknownIsError};

private:
    Refuser refuser;
};

void parseNearEnd(const Words& line, int left, const Outcome& right, const Stored& defaults) {
    const checking::Place place(std::to_string(left) + " numbers left");
    Client client;
    const Outcome found = client.parse(line, INT_MAX - left);
    const bool isEnough = right.draws <= left;
    expectEqual(found.code, isEnough ? right.code : resultException, "code");
    expectEqual(found.draws, isEnough ? right.draws : left, "numbers drawn");
    expect(checking::isBeginning(found.stored, right.stored, defaults),
           "stored: " + checking::describe(found.stored));
    expect(!isEnough || checking::describe(found.stored) == checking::describe(right.stored),
           "stored: " + checking::describe(found.stored));

    IArgumentParser::m_idx = INT_MAX;
    expectEqual(
        client.tool->parseStream("--dry", client.tool.result), resultException, "at the end");
    expect(!client.tool.error().empty(), "error text");
    IArgumentParser::m_idx = 1;
    client.tool.startNewResult();
    expectEqual(client.tool->parseStream("--dry", client.tool.result), resultOk, "from the start");
}

}  // namespace

long useUpTheSequence() {
    constexpr int mostLeft = 12;
    const checking::Place place("end of the sequence");
    std::ofstream("two-levels") << "--level=1,2\n--level=3\n--\nplain";
    const int before = IArgumentParser::m_idx;
    const Stored defaults = Client().parse({}, 1).stored;
    long parses = 0;
    for (const Words& line : lines) {
        const checking::Place linePlace(line.empty() ? "nothing" : line.front());
        const Outcome right = Client().parse(line, 1);
        for (int left = 0; left <= mostLeft; ++left) {
            parseNearEnd(line, left, right, defaults);
            ++parses;
        }
    }
    IArgumentParser::m_idx = before;
    return parses;
}

}  // namespace zarn_3_3::hostile
