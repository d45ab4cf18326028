// The command line: what can be said, and what was.

#ifndef ZARN_CHECKSUMS_COMMAND_LINE_H
#define ZARN_CHECKSUMS_COMMAND_LINE_H

#include <optional>
#include <string>
#include <vector>

#include "checksum.h"

namespace checksums {

struct Command {
    bool create = false;
    bool verify = false;
    bool compare = false;

    Algorithm algorithm = Algorithm::crc32;
    bool ignoreMissing = false;
    bool quiet = false;
    std::optional<bool> color;  // nothing: up to the output
    std::string manifest = "checksums.txt";
    std::vector<std::string> names;  // files and folders, or manifests to compare
    Reading reading;
};

// Fills `command`. The code to exit with when there is nothing left to do: help was asked for, or
// the command line is wrong, and the user has been told.
std::optional<int> readCommandLine(int argc, const char* const* argv, Command& command);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_COMMAND_LINE_H
