// One text parsed three times: by parseStream, as the arguments that its lines are, and as an
// option file.

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "arguments.h"
#include "bytes.h"
#include "check.h"
#include "listener.h"
#include "memory_files.h"
#include "observation.h"
#include "quiet_console.h"
#include "recognizers/argument_parser.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

const std::vector<std::string> names{
    "verbose", "v", "version", "level", "count", "mask", "ratio", "kind", "color", "file"};

void declare(IParser& parser) {
    parser.option("verbose,v", "", vtNull, "main");
    parser.option("version", "", vtNull, "main");
    parser.option("level", "", vtS32, "main").allowValue(1).allowValue(2).allowValue(12);
    parser.option("count", "", vtU32, "main").tokenize(':');
    parser.option("mask", "", vtU64, "main");
    parser.option("ratio", "", vtDouble, "main");
    parser.option("kind", "", vtString, "main")
        .allowValue("marble")
        .allowValue("market")
        .allowDeprecatedValue("old", "marble");
    parser.option("color", "", vtBool, "main");
    parser.option("file", "", vtString, "main").positional();
    parser.addOptionFileOption("", "main");
}

// As the reading of option files is described, by the means of the standard library.
std::vector<std::string> plainLines(const std::string& text) {
    std::vector<std::string> arguments;
    std::istringstream stream(text == "-1" ? "?" : text);
    for (std::string line; std::getline(stream, line);) {
        line.erase(0, std::min(line.size(), line.find_first_not_of(" \t\v\f\r")));
        if (!line.empty() && line[0] != ';' && line[0] != '#') {
            arguments.push_back(line.substr(0, line.find_last_not_of('\r') + 1));
        }
    }
    return arguments;
}

struct Outcome {
    int code;
    std::string seen;
    bool namesFiles;
};

// Calls parse(parser, result); what it stores is numbered from `firstNumber`.
template <typename Parse>
Outcome parseInto(int flags, bool isHeard, int firstNumber, Parse parse) {
    IArgumentParser::m_idx = firstNumber;
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    require(createParser(&parser, flags) == resultOk, "a parser");
    require(parser->createResult(&result) == resultOk, "a result");
    declare(*parser);
    Listener listener(Deed::none, 0);
    if (isHeard) {
        parser->addHandler(&listener);
    }
    const int code = parse(*parser, result);
    checkOutcome(code, *parser, listener);
    require(code != resultException, "nothing is thrown");
    std::string seen = parser->getErrorDesc();
    parser->destroy();
    seen += "\n" + stored(*result, names);
    const bool namesFiles = result->present("option-file", 1, 0x7fffffff);
    result->destroy();
    const std::string ownEvents = "option option-file\nvalue option-file 0 f0 @0 kind 12 'f0'\n";
    const bool isFirst = listener.events.substr(0, ownEvents.size()) == ownEvents;
    return {code, seen + listener.events.substr(isFirst ? ownEvents.size() : 0), namesFiles};
}

void compare(const Outcome& actual, const Outcome& expected, const char* what) {
    requireEqual(std::to_string(actual.code), std::to_string(expected.code), what);
    requireEqual(actual.seen, expected.seen, what);
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    const int flags = static_cast<int>(bytes.below(64));
    const bool isHeard = bytes.flag();
    const std::string text = bytes.text();
    const QuietConsole console;
    setFiles({text});

    const Outcome expected = parseInto(flags, isHeard, 1, [&](auto& parser, auto* result) {
        const std::vector<char> exact(text.c_str(), text.c_str() + text.size() + 1);
        return parser.parseStream(exact.data(), result);
    });
    const Outcome asArguments = parseInto(flags, isHeard, 1, [&](auto& parser, auto* result) {
        return parseArguments(parser, plainLines(text), result);
    });
    compare(asArguments, expected, "the arguments that the lines are");
    const bool hasMark = text.substr(0, 3) == "\xEF\xBB\xBF";
    if (!expected.namesFiles && !hasMark) {
        const Outcome asFile = parseInto(flags, isHeard, -1, [&](auto& parser, auto* result) {
            return parseArguments(parser, {"--option-file=f0"}, result);
        });
        compare(asFile, expected, "an option file");
    }
    return 0;
}
