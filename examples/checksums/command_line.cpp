#include "command_line.h"

#include <limits>
#include <new>
#include <string_view>

#include "console.h"
#include "unknown_arguments.h"
#include "value_checks.h"
#include "vocabulary.h"

namespace checksums {
namespace {

using zarn::IParser;
using zarn::IParseResult;
using zarn::Value;

constexpr int wholeLineFrom = 0;
constexpr int wholeLineTo = std::numeric_limits<int>::max();

Owned<IParseResult> makeResult(IParser& parser) {
    IParseResult* result = nullptr;
    if (parser.createResult(&result) != zarn::resultOk) {
        throw std::bad_alloc();
    }
    return Owned<IParseResult>(result);
}

bool isGiven(IParseResult& result, const char* name) {
    return result.present(name, wholeLineFrom, wholeLineTo);
}

// The first value given, so that the command line goes before option files; else the default.
Value valueOf(IParseResult& result, const char* name) {
    return result.get(name, wholeLineFrom, wholeLineTo);
}

std::vector<std::string> allValuesOf(IParseResult& result, const char* name) {
    std::vector<std::string> values;
    for (Value value = valueOf(result, name); value.status == 0; value = result.next(name)) {
        // An empty argument is an occurrence without a value.
        if (value.text != nullptr) {
            values.emplace_back(value.text);
        }
    }
    return values;
}

// The parser warns of the deprecated value and hands it on as it is.
Algorithm algorithmOf(const Value& value) {
    const std::string_view name = value.text;
    return name == deprecatedCrc ? Algorithm::crc32
                                 : algorithmNamed(name).value_or(Algorithm::crc32);
}

Command commandOf(IParseResult& result) {
    Command command;
    command.create = isGiven(result, names::create);
    command.verify = isGiven(result, names::verify);
    command.compare = isGiven(result, names::compare);
    command.help = isGiven(result, names::help);
    command.hidden = isGiven(result, names::hidden);
    command.ignoreMissing = isGiven(result, names::ignoreMissing);
    command.quiet = isGiven(result, names::quiet);
    command.algorithm = algorithmOf(valueOf(result, names::algorithm));
    command.manifest = valueOf(result, names::manifest).text;
    command.names = allValuesOf(result, names::files);
    command.reading.jobs = valueOf(result, names::jobs).value.get<unsigned>();
    command.reading.bufferSize = valueOf(result, names::bufferSize).value.get<unsigned>();
    const Value color = valueOf(result, names::color);
    if (color.status == 0) {
        command.color = color.value.get<bool>();
    }
    return command;
}

// What is wrong with the names for the actions given; null when nothing is.
const char* whyNamesAreWrong(const Command& command) {
    const std::size_t count = command.names.size();
    if (command.create && count == 0) {
        return "Action '-create' needs the files and folders to sum.";
    }
    if (command.verify && !command.create && count != 0) {
        return "Action '-verify' checks the files of the manifest (option '-manifest') and takes "
               "no others.";
    }
    if (command.compare && count != 2) {
        return "Action '-compare' needs two manifests, the old one and the new one.";
    }
    return nullptr;
}

ExitCode refuse(const std::string& message) {
    printError(message);
    printHint("The actions are -create, -verify, -compare and -help; see 'checksums -help'.");
    return exitUsage;
}

ExitCode reportFailure(int code, const std::string& message, const ValueChecks& checks) {
    switch (code) {
        case zarn::resultRuleBroken:
            return refuse(message);
        case zarn::resultVetoed:
            printError(message + ": " + checks.reason());
            return checks.isFileMissing() ? exitFile : exitUsage;
        case zarn::resultOptionFileUnreadable:
            printError(message);
            return exitFile;
        default:
            printError("Internal error: " + message);
            return exitInternal;
    }
}

ExitCode reportUnknown(const std::vector<std::string>& arguments) {
    std::string list;
    for (const std::string& argument : arguments) {
        list += (list.empty() ? "'" : ", '") + argument + "'";
    }
    return refuse((arguments.size() == 1 ? "Unknown option: " : "Unknown options: ") + list);
}

}  // namespace

Owned<IParser> makeParser() {
    IParser* parser = nullptr;
    // The third flag: names that begin with a dash can be given behind "--".
    const int flags = zarn::flagPositionalWithoutDash | zarn::flagPositionalTakesRest |
                      zarn::flagPositionalBehindTerminator;
    if (zarn::createParser(&parser, flags) != zarn::resultOk) {
        throw std::bad_alloc();
    }
    Owned<IParser> owned(parser);
    declareVocabulary(*owned);
    return owned;
}

Outcome readCommandLine(IParser& parser, int argc, const char* const* argv) {
    if (argc < 2) {
        return {refuse("No action defined."), {}};
    }
    const Owned<IParseResult> result = makeResult(parser);
    ValueChecks checks;
    UnknownArguments unknown;
    parser.addHandler(&checks);
    parser.addHandler(&unknown);
    const int code = parser.parseArgsVector(argc, argv, result.get());
    parser.removeHandler(&checks);
    parser.removeHandler(&unknown);

    if (!unknown.all().empty()) {
        return {reportUnknown(unknown.all()), {}};
    }
    if (code != zarn::resultOk) {
        return {reportFailure(code, parser.getErrorDesc(), checks), {}};
    }
    const Command command = commandOf(*result);
    if (const char* problem = whyNamesAreWrong(command)) {
        return {refuse(problem), {}};
    }
    return {exitOk, command};
}

}  // namespace checksums
