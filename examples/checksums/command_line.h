// The command line, understood: what the actions need to know, without the parser.

#ifndef ZARN_CHECKSUMS_COMMAND_LINE_H
#define ZARN_CHECKSUMS_COMMAND_LINE_H

#include <zarn/typed.h>

#include <optional>
#include <string>
#include <vector>

#include "checksum.h"
#include "exit_code.h"

namespace checksums {

struct Command {
    bool create = false;
    bool verify = false;
    bool compare = false;
    bool help = false;

    Algorithm algorithm = Algorithm::crc32;
    bool hidden = false;
    bool ignoreMissing = false;
    bool quiet = false;
    std::optional<bool> color;  // nothing: up to the output
    std::string manifest;
    std::vector<std::string> names;  // files and folders, manifests to compare, or topics of help
    Reading reading;
};

// Throws std::bad_alloc when memory runs out.
zarn::Parser makeParser();

// What the tool is to do; when the command line is wrong, the code to exit with, after the error
// stream has been told why.
struct Outcome {
    ExitCode code = exitOk;
    Command command;
};

Outcome readCommandLine(zarn::Parser& parser, int argc, const char* const* argv);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_COMMAND_LINE_H
