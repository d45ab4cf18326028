// checksums: writes, verifies and compares lists of checksums.

#include <algorithm>
#include <exception>
#include <iostream>

#include "actions.h"
#include "command_line.h"
#include "file_error.h"

namespace checksums {
namespace {

ExitCode perform(const Command& command) {
    const Results results(command.color, command.quiet);
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

int run(int argc, const char* const* argv) {
    Command command;
    int code = exitOk;
    if (const auto ended = readCommandLine(argc, argv, command)) {
        code = *ended;
    } else {
        code = perform(command);
    }
    if (!std::cout.flush()) {
        printError("The standard output cannot be written.");
        return std::max<int>(code, exitFile);
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
