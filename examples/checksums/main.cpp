// checksums: writes, verifies and compares lists of checksums.

#include <algorithm>
#include <exception>
#include <iostream>

#include "actions.h"
#include "command_line.h"
#include "file_error.h"

namespace checksums {
namespace {

ExitCode perform(const Command& command, zarn::IParser& parser) {
    const Results results(command.color, command.quiet);
    if (command.help) {
        return showHelp(command, parser);
    }
    if (command.compare) {
        return compareManifests(command, results);
    }
    ExitCode code = exitOk;
    if (command.create) {
        code = createManifest(command, results);
    }
    if (command.verify) {
        code = std::max(code, verifyManifest(command, results));
    }
    return code;
}

ExitCode run(int argc, const char* const* argv) {
    zarn::Parser parser = makeParser();
    const Outcome outcome = readCommandLine(parser, argc, argv);
    if (outcome.code != exitOk) {
        return outcome.code;
    }
    const ExitCode code = perform(outcome.command, parser);
    if (!std::cout.flush()) {
        printError("The standard output cannot be written.");
        return std::max(code, exitFile);
    }
    return code;
}

}  // namespace
}  // namespace checksums

int main(int argc, char** argv) {
    try {
        return checksums::run(argc, argv);
    } catch (const checksums::FileError& error) {
        checksums::printError(error.what());
        return checksums::exitFile;
    } catch (const std::exception& error) {
        checksums::printError(error.what());
        return checksums::exitInternal;
    }
}
