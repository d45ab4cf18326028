// A whole parse: vocabulary, flags, arguments, option files, help and queries, all from the bytes.
//
// It is acted out twice, the second time unheard, or as lines of a text: both give the same.

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "arguments.h"
#include "bytes.h"
#include "check.h"
#include "listener.h"
#include "memory_files.h"
#include "observation.h"
#include "questions.h"
#include "quiet_console.h"
#include "recognizers/argument_parser.h"
#include "support/assertion_double.h"
#include "tool.h"
#include "vocabulary.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

constexpr int last = std::numeric_limits<int>::max();

enum class Way { heard, unheard, asLines };

struct Outcome {
    std::string events;
    std::string seen;
    bool canBeText = false;
};

int parse(Way way,
          IParser& parser,
          const std::vector<std::string>& arguments,
          IParseResult* result) {
    try {
        if (way != Way::asLines) {
            return parseArguments(parser, arguments, result);
        }
        // A text does not bring the defaults along.
        const int code = parser.parseArgsVector(0, nullptr, result);
        return code != resultOk ? code : parser.parseStream(linesOf(arguments).c_str(), result);
    } catch (const int) {
        return -1;
    }
}

void checkException(int start, const Listener& listener, const std::vector<std::string>& names) {
    const bool hasNameless = std::find(names.begin(), names.end(), "") != names.end();
    require(start != 1 || listener.hasThrown || hasNameless, "an exception has a cause");
}

Outcome act(Bytes bytes, Way way) {
    const int start = bytes.below(16) == 15 ? last - static_cast<int>(bytes.below(12)) : 1;
    IArgumentParser::m_idx = start;
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    require(createParser(&parser, static_cast<int>(bytes.below(64))) == resultOk, "a parser");
    require(parser->createResult(&result) == resultOk, "a result");
    const auto deed = static_cast<Deed>(bytes.below(8) < 4 ? 0U : bytes.below(5));
    Listener listener(deed, deed == Deed::none ? 0 : bytes.below(8));
    if (way == Way::heard || deed != Deed::none) {
        parser->addHandler(&listener);
    }

    Outcome outcome;
    const std::vector<std::string> names = declareTool(bytes, *parser);
    setFiles(filesFrom(bytes));
    const std::vector<std::string> arguments = argumentsFrom(bytes);
    const int code = parse(way, *parser, arguments, result);
    if (code != -1) {
        checkOutcome(code, *parser, listener);
    }
    if (code == resultException) {
        checkException(start, listener, names);
    }
    outcome.seen =
        std::to_string(code) + " " + parser->getErrorDesc() + "\n" + declarations(*parser, names);
    if (way == Way::heard) {
        checkHelp(*parser, names);
    }
    parser->destroy();
    outcome.seen += queries(bytes, *result, names);
    outcome.seen += stored(*result, names);
    result->destroy();
    outcome.events = listener.events;
    outcome.canBeText = canBeLines(arguments);
    return outcome;
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    const Bytes bytes(data, size);
    const QuietConsole console;
    const Outcome first = act(bytes, Way::heard);
    const Outcome second = act(bytes, first.canBeText ? Way::asLines : Way::unheard);
    requireEqual(second.seen, first.seen, "a parse in another way");
    require(second.events.empty() || second.events == first.events, "the same events");
    takeAssertions();
    return 0;
}
