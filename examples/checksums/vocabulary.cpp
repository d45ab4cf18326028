#include "vocabulary.h"

#include "checksum.h"

namespace checksums {
namespace {

using zarn::IParser;
using zarn::vtBool;
using zarn::vtNull;
using zarn::vtString;
using zarn::vtU32;

// One section without key and title: the help then lists the options and nothing else.
constexpr const char* visible = "";
constexpr const char* hidden = "zarn_hidden:For experiments.";

// Declared before all other items: handlers hear of every positional argument under the name that
// was declared first, and here that is its own.
void declareFiles(IParser& parser) {
    parser.option(names::files, "The files and folders, or the topics of help.", vtString, visible)
        .positional()
        .tokenize(0);
}

void declareActions(IParser& parser) {
    parser.action("create,c",
                  "Sum the files, and those in the folders, and write the manifest.",
                  vtNull,
                  visible);
    parser.action("verify,v", "Tell which files still are as the manifest says.", vtNull, visible);
    parser.action(names::compare, "Tell how the second of two manifests differs.", vtNull, visible);
    parser.action("help,h", "Explain everything, or the topics named.", vtNull, visible);
    parser.allowSimultaneousActions({names::create, names::verify});
}

void declareModifiers(IParser& parser) {
    parser
        .modifier(
            "manifest,m", "create,verify", "The file that holds the checksums.", vtString, visible)
        .tokenize(0)
        .defaultValue("checksums.txt");
    // tokenize comes last: allowValue has values cut at commas.
    parser.modifier("algorithm,a", names::create, "The kind of checksum.", vtString, visible)
        .allowValue(nameOf(Algorithm::crc32))
        .allowValue(nameOf(Algorithm::adler32))
        .allowDeprecatedValue(deprecatedCrc, nameOf(Algorithm::crc32))
        .defaultValue(nameOf(Algorithm::crc32))
        .tokenize(0);
    parser.modifier("ignore-missing,i",
                    names::verify,
                    "Do not count files that are not there.",
                    vtNull,
                    visible);
    parser.modifier("quiet,q",
                    "create,verify,compare",
                    "Tell of differences and problems only.",
                    vtNull,
                    visible);
}

void declareGlobalOptions(IParser& parser) {
    // No default: when nothing is said, the tool looks whether it writes to a terminal.
    parser.option(names::color, "Paint the results.", vtBool, visible);
    parser.option("jobs,j", "How many files are read at a time.", vtU32, visible).defaultValue(2u);
    parser.addOptionFileOption(
        "A file of further arguments, one a line. Several are separated by commas. Of an option "
        "given twice the first counts, and files come after the command line.",
        visible);
}

void declareHidden(IParser& parser) {
    parser.modifier(
        names::hidden, names::help, "Show the options for experiments.", vtNull, hidden);
    parser
        .modifier(
            names::bufferSize, "create,verify", "How many bytes are read at a time.", vtU32, hidden)
        .defaultValue(65536u);
}

}  // namespace

void declareVocabulary(IParser& parser) {
    declareFiles(parser);
    declareActions(parser);
    declareModifiers(parser);
    declareGlobalOptions(parser);
    declareHidden(parser);
}

}  // namespace checksums
