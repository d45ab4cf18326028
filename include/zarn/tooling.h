// A tool that can be asked: what it takes, for machines, and what may follow on a command line.
//
// The library prints nothing, reads no environment and ends no process. The tool (or Parser::run)
// asks in front of its parse whether the command line is a question, and prints the answer:
//
//     const zarn::ToolInfo tool{sizeof tool, "sonde", "2.1", "look into archives"};
//     const char* answer = "";
//     if (zarn::answerQuestion(parser, &tool, argc, argv, &answer) == zarn::questionAnswered) {
//         std::fputs(answer, stdout);
//         return 0;
//     }

#ifndef ZARN_TOOLING_H
#define ZARN_TOOLING_H

#include <cstdint>

#include "zarn/export.h"

namespace zarn_3_3 {

class IParser;

// Who answers. Null texts are absent.
struct ToolInfo {
    std::uint32_t size;   // sizeof(ToolInfo) of the caller; fields beyond it are absent
    const char* name;     // as users type it
    const char* version;  // such as "2.1"
    const char* summary;  // one line
};

// What the functions here return. Nothing is ever thrown.
enum ToolingCode : int {
    toolingDone = 0,
    ordinaryLine = 0,      // answerQuestion: an ordinary command line
    questionAnswered = 1,  // answerQuestion: print the answer, which may be empty, and end with 0
    toolingFailed = 3,     // a null pointer, a parser of another library, or no memory
};

// Answers a question that is put on the command line:
//
//     tool --zarn-answer QUESTION [-- WORD...]
//
// with nothing in front of it. A question that this library does not know, of a newer protocol
// perhaps, has an empty answer.
//
// parser  with everything declared; nothing in it changes that can be seen: no handler runs, no
//         file is read, no number of the sequence is drawn, getErrorDesc answers as before
// tool    who answers
// argc    as given to main
// argv    as given to main; may be null when `argc` is 0
// answer  receives the answer when questionAnswered is returned, else an empty text; the parser
//         keeps it until its destroy
//
// Returns ordinaryLine, questionAnswered or toolingFailed.
ZARN_EXPORT int answerQuestion(
    IParser* parser, const ToolInfo* tool, int argc, const char* const* argv, const char** answer);

// Names the value of an item for the help and the description, as "FILE"; an empty or null text,
// and an item without a value name, stand for the word of its type.
//
// parser     whose item it is
// item       one of its names
// valueName  copied
//
// Returns toolingDone; toolingFailed also when no item has the name.
ZARN_EXPORT int nameValue(IParser* parser, const char* item, const char* valueName);

// Describes what a tool takes as JSON of the format 1, the answer to the question "describe": who
// it is, and what was declared, in order, with what was refused. UTF-8, in any locale; equal
// declarations give equal bytes. The page "The description" of the documents has the keys.
//
// parser  as for answerQuestion
// tool    who is described
// json    receives the text, or an empty one; the parser keeps it until its destroy
//
// Returns toolingDone or toolingFailed.
ZARN_EXPORT int describeVocabulary(IParser* parser, const ToolInfo* tool, const char** json);
// How help is to look; combine with |.
enum HelpFlag : std::uint32_t {
    helpEmphasized = 0x1,  // bold names and underlined titles, by the sequences of ANSI terminals
    helpWithHidden = 0x2,  // hidden items too, in a section of their own
};

// What formatHelp is to say, and how. A HelpStyle of its own asks for the whole help in 80 columns.
struct HelpStyle {
    std::uint32_t size = sizeof(HelpStyle);  // of the caller; fields beyond it are absent
    std::uint32_t width = 80;                // in columns; at least 20
    std::uint32_t flags = 0;                 // any combination of HelpFlag values
    const char* topic = nullptr;             // a name of an option or action; null: everything
    const ToolInfo* tool = nullptr;          // for the usage line, and the summary; may be null
};

// Writes help as people like to read it, in the columns that a terminal shows: wide characters
// count as two, combining ones as none. No line is wider than asked for but one that holds a single
// long word; none ends with a blank.
//
// The whole help: a usage line, for few actions one each; the summary; the sections and in them the
// items in order of declaration. What was declared without a section stands under "Actions:",
// "Arguments:", "Options of --pack:" and "Options:". The help of an action: how to call it, what it
// does, and what may be given with it. The help of an option: its entry. Positional items are shown
// as optional unless the modern face says otherwise. The texts are free to become better: tools
// that compare texts use those of IParser.
//
// parser  with everything declared
// style   what is wanted
// text    receives the help, or an empty text on failure; the parser keeps it until its destroy
//
// Returns toolingDone; toolingFailed also when nothing has the name `style->topic`.
ZARN_EXPORT int formatHelp(IParser* parser, const HelpStyle* style, const char** text);
// How bad the worst is that checkVocabulary has found.
enum CheckCode : int {
    nothingFound = 0,
    warningsFound = 1,  // it works, but perhaps not as users expect
    errorsFound = 2,    // something that was declared is lost, or never works
};

// Looks for mistakes in a vocabulary that declarations pass over in silence; meant for a unit test:
//
//     const char* findings = "";
//     EXPECT_EQ(zarn::checkVocabulary(parser, nullptr, &findings), zarn::nothingFound) << findings;
//
// As a question on the command line it is `check`, or `check:IGNORED`.
//
// parser    with everything declared; see answerQuestion
// ignored   ids, or "id:item" for one item, separated by commas; null for none
// findings  receives one line for each finding, in the order of declaration, as
//           "error name-clash 'level': ..."; the parser keeps the text until its destroy
//
// Returns a CheckCode, or toolingFailed.
ZARN_EXPORT int checkVocabulary(IParser* parser, const char* ignored, const char** findings);
// The ways to fail, beside each the text that a user reads. A number never changes its meaning; a
// later library may know more of them.
enum DiagnosticKind : std::int32_t {
    noFailure = 0,

    // Arguments.
    unknownArgument = 1,       // "Unknown option: ..."
    malformedOption = 2,       // "Unknown option '...'": no name, or a dash too many
    ambiguousOption = 3,       // "Ambiguous option ..."
    switchWithValue = 4,       // "Option ...does not requires a value ..."
    booleanWithValue = 5,      // "Option ... is boolean and should be declared ..."
    valueMissing = 6,          // "Option ... requires a value ..."
    valueLooksLikeOption = 7,  // "Option ... received value from the next argument: ..."

    // Values.
    nothingButSeparators = 8,  // "No value parsed in argument ..."
    valueOfOtherType = 9,      // "Option ... can not parse ..."
    valueNotAllowed = 10,      // "Option ... does not allow value ..."
    ambiguousValue = 11,       // "Ambiguous value for option ..."
    valueRefused = 12,         // "Value ... is not valid for option ...", by a handler

    // Option files.
    optionFileUnreadable = 13,  // "Error reading option file ..."
    optionFileCycle = 14,       // the same, and so the next two: "... in a cycle"
    tooManyOptionFiles = 15,    // "... more than 1000 option files ..."
    tooMuchOptionText = 16,     // "... more than 256 MiB of option files ..."

    // Actions.
    actionsExclude = 17,       // "Action ... and action ... were defined, ..."
    actionRefusesOption = 18,  // "Action ... doesn't accept option ..."
    noAction = 19,             // "No action defined."

    exceptionCaught = 20,    // the text of the exception
    unknownResultName = 21,  // the result holds what another parser found; without a text

    // The modern face alone.
    checkFailed = 22,         // "Value ... is not valid for option ...", by a check
    unexpectedArgument = 23,  // "Unexpected argument: ..."
    emptyArgument = 24,       // "Argument ... is empty"
    givenByPlace = 25,        // "Argument ... is given by its place, without its name"
    notBoolean = 26,          // "... it must be 1, true, yes, on, ...", of the environment
    requiredMissing = 27,     // "... is required"
    oneRequired = 28,         // "One of ... is required"
    optionsExclude = 29,      // "... does not go with ..."
    optionNeeded = 30,        // "... requires option ..."
    lineRefused = 31,         // the reason of a check of the whole line
    valuesDiffer = 32,        // "... takes one value, not ... and ..."
};

// How a parse has failed. Texts are never null; those that say nothing for a kind are empty.
//
// What failed is the argument: a value that stands in an argument of its own is that argument.
struct Diagnostic {
    std::uint32_t size;       // sizeof(Diagnostic) of the caller, who sets it
    std::int32_t kind;        // a DiagnosticKind
    std::int32_t code;        // what the parse returned
    std::int32_t index;       // of the argument, as argv[index]; 0 when it is not on a command line
    const char* file;         // the option file in which it stands
    std::uint64_t line;       // of that file, or of the text given to parseStream, from 1 on; or 0
    const char* argument;     // as it was typed
    const char* option;       // the primary name of the item
    const char* value;        // as it was typed: of several the one that is wrong
    const char* candidates;   // what there is to choose from, one a line
    const char* suggestions;  // what was probably meant, one a line, to be put in the place of the
                              // argument; of valueLooksLikeOption, of that and the one behind it
};

// Tells how the last parse has failed: of a command line, a text or a vector, when it has ended.
// The kind is noFailure when it has not, when nothing was parsed yet, and when there was no memory
// to note the failure, whose code and text nobody loses.
//
// What is suggested is looked for now, among the names and values that the user may know of: none
// that is hidden or deprecated. There are at most three, and those equally near to what was typed:
// one byte of it left out, put in, replaced, or swapped with its neighbour is a mistake, and there
// may be one in 3 to 5 bytes, two in 6 to 8 and three in up to 64.
//
// parser      kept as it is
// diagnostic  receives as much as its size says; the parser keeps the texts until its destroy
//
// Returns toolingDone, or toolingFailed, which leaves the record as it was.
ZARN_EXPORT int lastDiagnostic(IParser* parser, Diagnostic* diagnostic);

}  // namespace zarn_3_3

namespace zarn = zarn_3_3;

#endif  // ZARN_TOOLING_H
