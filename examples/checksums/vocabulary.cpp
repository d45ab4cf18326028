#include "vocabulary.h"

#include <string>

#include "checksum.h"

namespace checksums {
namespace {

using zarn::action;
using zarn::modifier;
using zarn::option;
using zarn::positional;

constexpr const char* hidden = "zarn_hidden:For experiments.";

// Declared before all other items: handlers hear of every positional argument under the name that
// was declared first, and here that is its own.
void declareFiles(zarn::Parser& parser) {
    parser.declare(
        {positional(names::files, "The files and folders, or the topics of help.").whole()});
}

void declareActions(zarn::Parser& parser) {
    parser.declare({
        action("create,c", "Sum the files, and those in the folders, and write the manifest."),
        action("verify,v", "Tell which files still are as the manifest says."),
        action(names::compare, "Tell how the second of two manifests differs."),
        action("help,h", "Explain everything, or the topics named."),
    });
    parser->allowSimultaneousActions({names::create, names::verify});
}

void declareModifiers(zarn::Parser& parser) {
    parser.declare({
        modifier<std::string>("manifest,m", "create,verify", "The file that holds the checksums.")
            .byDefault("checksums.txt")
            .whole(),
        modifier<std::string>("algorithm,a", names::create, "The kind of checksum.")
            .allow({nameOf(Algorithm::crc32), nameOf(Algorithm::adler32)})
            .deprecate(deprecatedCrc, nameOf(Algorithm::crc32))
            .byDefault(nameOf(Algorithm::crc32))
            .whole(),
        modifier("ignore-missing,i", names::verify, "Do not count files that are not there."),
        modifier("quiet,q", "create,verify,compare", "Tell of differences and problems only."),
    });
}

void declareGlobalOptions(zarn::Parser& parser) {
    parser.declare({
        // No default: when nothing is said, the tool looks whether it writes to a terminal.
        option<bool>(names::color, "Paint the results."),
        option<unsigned>("jobs,j", "How many files are read at a time.").byDefault(2),
    });
    parser->addOptionFileOption(
        "A file of further arguments, one a line. Several are separated by commas. Of an option "
        "given twice the first counts, and files come after the command line.",
        "");
}

void declareHidden(zarn::Parser& parser) {
    parser.declare(hidden,
                   {
                       modifier(names::hidden, names::help, "Show the options for experiments."),
                       modifier<unsigned>(
                           names::bufferSize, "create,verify", "How many bytes are read at a time.")
                           .byDefault(65536),
                   });
}

}  // namespace

void declareVocabulary(zarn::Parser& parser) {
    declareFiles(parser);
    declareActions(parser);
    declareModifiers(parser);
    declareGlobalOptions(parser);
    declareHidden(parser);
}

}  // namespace checksums
