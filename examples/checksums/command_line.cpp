#include "command_line.h"

#include <zarn/typed.h>

#include <filesystem>
#include <system_error>

#include "console.h"
#include "exit_code.h"

template <>
struct zarn::Names<checksums::Algorithm> {
    static constexpr zarn::Name<checksums::Algorithm> table[] = {
        {"crc32",   checksums::Algorithm::crc32  },
        {"adler32", checksums::Algorithm::adler32},
    };
};

namespace checksums {
namespace {

using zarn::action;
using zarn::modifier;
using zarn::option;
using zarn::positional;

bool isThere(const std::string& file) {
    std::error_code error;
    return std::filesystem::exists(file, error);
}

void declareActions(zarn::Parser& parser, Command& command) {
    parser.declare({
        action("create,c", "Sum the files, and those in the folders, and write the manifest.")
            .into(command.create),
        action("verify,v", "Tell which files still are as the manifest says.").into(command.verify),
        action("compare", "Tell how the second of two manifests differs.").into(command.compare),
    });
    parser->allowSimultaneousActions({"create", "verify"});
}

void declareOptions(zarn::Parser& parser, Command& command) {
    parser.declare({
        modifier<std::string>("manifest,m", "create,verify", "The file that holds the checksums.")
            .named("FILE")
            .into(command.manifest)
            .byDefault(),
        modifier<Algorithm>("algorithm,a", "create", "The kind of checksum.")
            .named("KIND")
            .deprecate("crc", Algorithm::crc32)
            .into(command.algorithm)
            .byDefault(),
        modifier("ignore-missing,i", "verify", "Do not count files that are not there.")
            .into(command.ignoreMissing),
        modifier("quiet,q", "create,verify,compare", "Tell of differences and problems only.")
            .into(command.quiet),
        // No default: when nothing is said, the tool looks whether it writes to a terminal.
        option<bool>("color", "Paint the results.").into(command.color),
        option<unsigned>("jobs,j", "How many files are read at a time.")
            .named("COUNT")
            .between(1, 64)
            .into(command.reading.jobs)
            .fromEnvironment("CHECKSUMS_JOBS")
            .byDefault(),
        positional("file", "create,compare", "What to sum, or the two manifests to compare.")
            .check(isThere, "there is no such file or folder (options stand before the first file)")
            .named("FILE")
            .required()
            .into(command.names),
    });
    parser.declare(
        "zarn_hidden:For experiments.",
        {modifier<zarn::Bytes>("buffer-size", "create,verify", "How many bytes are read at a time.")
             .named("BYTES")
             .between(zarn::Bytes{1}, zarn::Bytes{1 << 24})
             .into(command.reading.bufferSize)});
    parser.readOptionFiles("A file of further arguments, one a line.");
}

// What is wrong with a command line that keeps all the rules; null when nothing is.
const char* whyNotDone(const Command& command) {
    if (!command.create && !command.verify && !command.compare) {
        return "No action defined.";
    }
    if (command.compare && command.names.size() != 2) {
        return "Action '--compare' needs two manifests, the old one and the new one.";
    }
    return nullptr;
}

}  // namespace

std::optional<int> readCommandLine(int argc, const char* const* argv, Command& command) {
    zarn::Parser parser({"checksums", "1.0", "Writes, verifies and compares lists of checksums."},
                        zarn::usualFlags | zarn::flagPositionalTakesRest);
    declareActions(parser, command);
    declareOptions(parser, command);
    if (const auto ended = parser.run(argc, argv)) {
        return ended;
    }
    if (const char* const problem = whyNotDone(command)) {
        printError(problem);
        return exitUsage;
    }
    return std::nullopt;
}

}  // namespace checksums
