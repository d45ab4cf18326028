// A parse through the window of one or two arguments, as a parse that erases the front of one long
// vector leaves it.

#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include "bytes.h"
#include "check.h"
#include "listener.h"
#include "observation.h"
#include "options/registered_option_storage.h"
#include "parser/argument_sources.h"
#include "parser/parse_driver.h"
#include "quiet_console.h"
#include "recognizers/argument_parser.h"
#include "recognizers/handler_set.h"
#include "result/parse_result.h"
#include "support/assertion_double.h"
#include "vocabulary.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;
using Arguments = std::vector<std::string>;

struct Input {
    int flags;
    Deed deed;
    unsigned eventsBefore;
    Bytes vocabulary;
    Arguments arguments;
};

// What is typed stands behind the vocabulary, which has to be declared to find it.
Input inputFrom(Bytes bytes) {
    const int flags = static_cast<int>(bytes.below(64));
    const auto deed = static_cast<Deed>(bytes.below(5));
    const unsigned eventsBefore = bytes.below(16);
    const Bytes vocabulary = bytes;
    RegisteredOptionStorage discarded;
    declareVocabulary(bytes, discarded);
    return {flags, deed, eventsBefore, vocabulary, argumentsFrom(bytes)};
}

// Calls parse(arguments, error), which takes from the front of the vector. How it ended, what it
// left and what was heard.
template <typename Parse>
std::string outcomeOf(Arguments arguments, const Listener& listener, Parse parse) {
    const Arguments before = arguments;
    std::string error;
    std::string outcome;
    try {
        outcome = std::to_string(parse(arguments, error));
    } catch (const std::exception& caught) {
        outcome = caught.what();
    } catch (const int) {
        outcome = "thrown";
    }
    require(arguments.size() <= before.size() &&
                std::equal(arguments.rbegin(), arguments.rend(), before.rbegin()),
            "only the front is taken");
    return outcome + " " + error + "\n" + std::to_string(arguments.size()) + " left\n" +
           listener.events;
}

std::string erasingOneVector(const Input& input) {
    IArgumentParser::m_idx = 1;
    RegisteredOptionStorage registry;
    registry.setSeparator((input.flags & flagValuesStayWhole) != 0 ? '\0' : ',');
    Bytes bytes = input.vocabulary;
    const Arguments names = declareVocabulary(bytes, registry);
    Listener listener(input.deed, input.eventsBefore);
    internal::HandlerSet listeners;
    listeners.add(&listener);
    ParseResult result;
    const Arguments none;
    internal::VectorSource nothing(none);
    const auto parse = [&](Arguments& arguments, std::string& error) {
        internal::ParseDriver driver(registry, listener, listeners, input.flags, &result, error);
        return driver.parseOptions("--", arguments, nothing);
    };
    const std::string outcome = outcomeOf(input.arguments, listener, parse);
    return outcome + stored(result, names);
}

// parse_phase_one of the exported object, called as derived tools do: by its number in the table.
int parsePhaseOne(IParser* parser, Arguments& arguments, IParseResult* result, std::string& error) {
    using Phase = int(void*, const std::string&, Arguments&, IParseResult*, std::string&);
    constexpr std::size_t slot = 23;
    void* const* table = nullptr;
    std::memcpy(&table, static_cast<void*>(parser), sizeof table);
    return reinterpret_cast<Phase*>(table[slot])(parser, "--", arguments, result, error);
}

std::string throughTheWindow(const Input& input) {
    IArgumentParser::m_idx = 1;
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    require(createParser(&parser, input.flags) == resultOk, "a parser");
    require(parser->createResult(&result) == resultOk, "a result");
    Bytes bytes = input.vocabulary;
    const Arguments names = declareVocabulary(bytes, *parser);
    Listener listener(input.deed, input.eventsBefore);
    parser->addHandler(&listener);
    const auto parse = [&](Arguments& arguments, std::string& error) {
        return parsePhaseOne(parser, arguments, result, error);
    };
    const std::string outcome = outcomeOf(input.arguments, listener, parse);
    parser->destroy();
    const std::string seen = outcome + stored(*result, names);
    result->destroy();
    return seen;
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    const QuietConsole console;
    const Input input = inputFrom(Bytes(data, size));
    requireEqual(throughTheWindow(input), erasingOneVector(input), "parsing through the window");
    takeAssertions();
    return 0;
}
