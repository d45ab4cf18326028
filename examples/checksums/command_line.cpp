#include "command_line.h"

#include <string_view>

#include "console.h"
#include "value_checks.h"
#include "vocabulary.h"

namespace checksums {
namespace {

// The parser warns of the deprecated value and hands it on as it is.
Algorithm algorithmOf(std::string_view name) {
    return name == deprecatedCrc ? Algorithm::crc32
                                 : algorithmNamed(name).value_or(Algorithm::crc32);
}

// Of an option given twice the first counts, so that the command line overrules option files.
Command commandOf(zarn::IParseResult& result) {
    Command command;
    command.create = zarn::isGiven(result, names::create);
    command.verify = zarn::isGiven(result, names::verify);
    command.compare = zarn::isGiven(result, names::compare);
    command.help = zarn::isGiven(result, names::help);
    command.hidden = zarn::isGiven(result, names::hidden);
    command.ignoreMissing = zarn::isGiven(result, names::ignoreMissing);
    command.quiet = zarn::isGiven(result, names::quiet);
    command.color = zarn::get<bool>(result, names::color);
    command.algorithm = algorithmOf(zarn::valueOr(result, names::algorithm, ""));
    command.manifest = zarn::valueOr(result, names::manifest, "");
    command.names = zarn::values<std::string>(result, names::files);
    Reading& reading = command.reading;
    reading.jobs = zarn::valueOr(result, names::jobs, reading.jobs);
    reading.bufferSize = zarn::valueOr(result, names::bufferSize, reading.bufferSize);
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

ExitCode reportFailure(const zarn::ParseOutcome& parsed, const ValueChecks& checks) {
    switch (parsed.code) {
        case zarn::resultRuleBroken:
            return refuse(parsed.text);
        case zarn::resultVetoed:
            printError(parsed.text + ": " + checks.reason());
            return checks.isFileMissing() ? exitFile : exitUsage;
        case zarn::resultOptionFileUnreadable:
            printError(parsed.text);
            return exitFile;
        default:
            printError("Internal error: " + parsed.text);
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

zarn::Parser makeParser() {
    // The third flag: names that begin with a dash can be given behind "--".
    zarn::Parser parser(zarn::flagPositionalWithoutDash | zarn::flagPositionalTakesRest |
                        zarn::flagPositionalBehindTerminator);
    declareVocabulary(parser);
    return parser;
}

Outcome readCommandLine(zarn::Parser& parser, int argc, const char* const* argv) {
    if (argc < 2) {
        return {refuse("No action defined."), {}};
    }
    ValueChecks checks;
    const zarn::Registration checking(parser, checks);
    std::vector<std::string> unknown;
    const zarn::OnUnknown collecting(parser, [&unknown](const char* argument) {
        unknown.emplace_back(argument);
        return false;  // taken care of, the parse goes on
    });
    const zarn::ParseOutcome parsed = parser.parse(argc, argv);

    if (!unknown.empty()) {
        return {reportUnknown(unknown), {}};
    }
    if (!parsed) {
        return {reportFailure(parsed, checks), {}};
    }
    const Command command = commandOf(parsed.result);
    if (const char* problem = whyNamesAreWrong(command)) {
        return {refuse(problem), {}};
    }
    return {exitOk, command};
}

}  // namespace checksums
