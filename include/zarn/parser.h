// The parser: declare a vocabulary, parse a command line, read errors and help.

#ifndef ZARN_PARSER_H
#define ZARN_PARSER_H

#include <set>
#include <string>

#include "zarn/event_handler.h"
#include "zarn/export.h"
#include "zarn/option.h"
#include "zarn/result.h"

// A std::set<std::string> crosses the interface, so both sides must lay it out alike.
#if defined(_LIBCPP_VERSION)
#error "zarn is built for libstdc++; a client built with libc++ cannot use it"
#endif
#if !_GLIBCXX_USE_CXX11_ABI
#error "zarn uses the C++11 string layout; build with _GLIBCXX_USE_CXX11_ABI=1"
#endif
#if defined(_GLIBCXX_DEBUG)
#error "_GLIBCXX_DEBUG changes the layout of std::set; use _GLIBCXX_ASSERTIONS instead"
#endif

namespace zarn_3_3 {

// What the operations of a parser return. Zero is success; the text that goes with any other code
// is IParser::getErrorDesc.
enum ResultCode : int {
    resultOk = 0,
    resultVetoed = 1,                // a handler refused a value
    resultRuleBroken = 2,            // the command line breaks a rule
    resultException = 3,             // a standard exception was caught inside the operation
    resultOptionFileUnreadable = 6,  // an option file could not be read
};

// What createParser is told; combine with |. Other bits are ignored.
enum ParserFlag : int {
    // An argument that nothing declared takes ends the parse with resultRuleBroken, unless a
    // handler takes care of it. Without the flag it is skipped.
    flagUnknownIsError = 0x02,
    // The arguments behind the terminator "--" are offered to the positional option too.
    flagPositionalBehindTerminator = 0x04,
    // The positional option takes no argument that begins with "-" (behind the terminator it
    // does). Without the flag it takes whatever is no option.
    flagPositionalWithoutDash = 0x08,
    // The first positional argument, and everything behind it, goes to the positional option:
    // "--", options and all.
    flagPositionalTakesRest = 0x10,
    // Values are not cut at ',' unless IOption::tokenize or IOption::allowValue says so.
    flagValuesStayWhole = 0x20,
};

// A vocabulary and what it takes to parse command lines of it.
//
// Command lines: "--name=value", "--name value", "-name", the name in full or abbreviated as long
// as it stays unambiguous, "--no-name" for booleans. One dash or two make no difference, and the
// dashes that word processors make of them are understood. "--" ends the options: what follows is
// kept as plain arguments.
//
// Ownership: made by createParser, freed with destroy, never with delete. Handlers and results are
// not the parser's: handlers must outlive their registration, results may outlive the parser. Every
// `const char*` that the parser returns or passes to a handler is valid, at the same address, until
// the parser is destroyed.
//
// Threads: a parser and its results belong to one thread at a time, and one parse at a time to the
// process (the sequence number and the log switch are shared by all parsers).
//
// Failures: the first one ends a parse. What was stored before it stays in the result and can be
// read. Declarations never fail: one that is refused hands out a stand-in without effect, and a
// name that is taken is reported in the debug log alone.
//
// Exceptions: no standard exception leaves an operation. One that is thrown inside a parse gives
// resultException, with its text in getErrorDesc as far as memory allows; elsewhere each operation
// says what it answers. The operations of EventHandler that a parser has, which pass each event on
// to the registered handlers, let exceptions through; so do the parsing operations for exceptions
// of handlers that do not derive from std::exception.
//
// The debug log: when the first argument of a command line or of an option file is
// "zarnoption=zarnlogenable=1", every step from there on is traced on the standard output, until
// the next command line or file begins.
//
// The order of the operations is part of the binary interface: nothing is ever added here.
class ZARN_EXPORT IParser : public EventHandler {
public:
    // Frees the parser and every text that it handed out. Not allowed inside an event.
    virtual void destroy() = 0;

    // Makes an empty result and stores it in `*out`. The caller owns it and frees it with
    // IParseResult::destroy. Returns resultOk, or resultException when `out` is null or memory runs
    // out; `*out` is then unchanged.
    virtual int createResult(IParseResult** out) = 0;

    // Declares an option that belongs to no action.
    //
    // names        its names without dashes, separated by ',', like "verbose,verb,v". The first is
    //              the primary one, which messages and help use. At most three, of which the third
    //              has at most two bytes.
    // description  its help text
    // type         the type of its values: vtBool ("--x" and "--no-x"), vtS32, vtU32, vtS64, vtU64
    //              (hexadecimal too), vtDouble, vtString, or vtNull for a switch without a value
    // section      the section of the help in which it stands: "key:Title", or the key alone. The
    //              title given first for a key stays. The key "zarn_hidden" hides the item from
    //              ordinary help.
    //
    // Null texts read as empty ones; all texts are copied. The reference is valid until the next
    // declaration.
    //
    // Refused are too many names, a long third name, and a name that an earlier item has; the
    // earlier boolean "color" has "no-color" too. Nothing is then declared, but the section stays.
    virtual IOption& option(const char* names,
                            const char* description,
                            das_variant_type_t type,
                            const char* section) = 0;

    // Declares an action: what the tool is to do. A command line may give one (or several of a
    // group, see allowSimultaneousActions). Where actions are declared, it must give one as soon as
    // any option stands in the result; a default alone is enough for that. Arguments as for option.
    virtual IOption& action(const char* names,
                            const char* description,
                            das_variant_type_t type,
                            const char* section) = 0;

    // Declares an option that belongs to actions, and is refused with any other action.
    // `actionNames` are the primary names of those actions, separated by ','; they need not be
    // declared yet. With null or an empty text the item belongs to no action. Other arguments as
    // for option.
    virtual IOption& modifier(const char* names,
                              const char* actionNames,
                              const char* description,
                              das_variant_type_t type,
                              const char* section) = 0;

    // Whether an item with exactly this name is declared: case-sensitive, without dashes, not
    // abbreviated. With `action` it is looked for among the actions, otherwise among the others;
    // with a `section` that is not null in the section with that key alone. False for a null name.
    virtual bool isOptionDeclared(const char* name, bool action, const char* section) = 0;

    // Parses a command line into `result`.
    //
    // argc, argv  as main has them. argv[0] is never read, a null entry ends the line; with argc
    //             below 2 there is nothing to parse and only the defaults are recorded. The texts
    //             are copied first: handlers may change and free them.
    // result      made by createResult of any parser. What it holds already stays, and what is
    //             found is added. Option files that it names, from an earlier parse too, are read
    //             again: their values are then there twice.
    //
    // Defaults first, then every argument in turn, then the files that "option-file" names, then
    // the rules on actions. Returns
    //   resultOk
    //   resultVetoed                a handler answered false to a value; or `result` holds a name,
    //                               stored by another parser, that this one does not know: the
    //                               error text is then as it was
    //   resultRuleBroken            an argument, a value or a combination of actions is wrong
    //   resultException             a standard exception inside; `result` null or not made by this
    //                               library, `argv` null with argc above 1
    //   resultOptionFileUnreadable  see addOptionFileOption
    virtual int parseArgsVector(int argc, const char* const* argv, IParseResult* result) = 0;

    // Parses a text that holds one argument a line, as option files do, into `result`. Blanks in
    // front of an argument are dropped, those behind it belong to it; lines that are empty or begin
    // with ';' or '#' are skipped. There is no quoting. Null reads as the empty text.
    //
    // The text is copied first: handlers may change and free it. Defaults are not recorded; the
    // rules on actions are checked, also for an empty text. Option files that `result` names, from
    // an earlier parse too, are read behind the text. Returns what parseArgsVector returns.
    virtual int parseStream(const char* text, IParseResult* result) = 0;

    // The text of the last failure; an empty text when nothing has failed yet. Success does not
    // clear it. It quotes arguments byte by byte: a tool that prints it to a terminal may want to
    // escape it.
    virtual const char* getErrorDesc() = 0;

    // Help texts. With `hidden` false they show everything but the section "zarn_hidden", with true
    // that section alone. Lines end with a line feed and have at most 79 bytes. Longer may be
    //   columns of names and values, which are never broken;
    //   titles of sections, which have up to 80 bytes;
    //   lists of actions, which are not wrapped.
    // When memory runs out: an empty text, or one that ends in "Unknown error handled.", which is
    // the last error then.
    //
    // This one lists the actions with their descriptions; for a vocabulary without actions, all its
    // options.
    virtual const char* getDescription(bool hidden) = 0;

    // The help of one item, given by any of its names without dashes; for an unknown one, a
    // sentence that says so and the text of getDescription(hidden). Null is getDescription(hidden).
    virtual const char* getDescription(const char* topic, bool hidden) = 0;

    // The options that belong to the action; an empty text when there are none, or for null. For an
    // unknown action as getDescription(topic, hidden).
    virtual const char* getActionModifiersDescription(const char* action, bool hidden) = 0;

    // The options that belong to no action.
    virtual const char* getGlobalModifiersDescription(bool hidden) = 0;

    // Registers a handler, which hears every event from now on (the one in progress perhaps). False
    // when it is registered already, is null, is this parser itself, or memory runs out.
    virtual bool addHandler(EventHandler* handler) = 0;

    // Removes a handler: it is not called any more, not even for the event in progress. False when
    // it is not registered.
    virtual bool removeHandler(EventHandler* handler) = 0;

    // Declares the option "option-file": each of its values names a file whose lines are parsed
    // like those of parseStream, after the command line, in the order given. Until this is called
    // no file is ever read.
    //
    // Files may name further files; they are read after those named before them. Relative paths
    // count from the working directory, also inside files. A path with a ',' is cut in two unless
    // the parser was made with flagValuesStayWhole. Regular files and pipes are read; a pipe
    // without a writer waits.
    //
    // These end the parse with resultOptionFileUnreadable: a file that cannot be read, has more
    // than 256 MiB or holds a NUL byte; a file that is named again while it is being read; the
    // 1,001st file; more than 256 MiB in all.
    //
    // Arguments as for option. Always true.
    virtual bool addOptionFileOption(const char* description, const char* section) = 0;

    // Lets the actions of the group, given by their primary names, be used together, in any
    // combination. Groups do not add up: all the actions of a command line must be in one. With the
    // groups {build, test} and {test, install}, "-build -install" is refused. True, or false when
    // memory runs out: nothing is then added.
    virtual bool allowSimultaneousActions(const std::set<std::string>& actions) = 0;

protected:
    virtual ~IParser() = default;
};

// Makes a parser.
//
// out    receives the parser; must not be null. The caller owns the parser and frees it with
//        IParser::destroy, never with delete.
// flags  any combination of ParserFlag values, or 0.
//
// Returns resultOk, or resultException when `out` is null or memory runs out: `*out` is then left
// as it was.
ZARN_EXPORT int createParser(IParser** out, int flags);

}  // namespace zarn_3_3

#endif  // ZARN_PARSER_H
