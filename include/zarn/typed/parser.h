// The parser of the modern face.

#ifndef ZARN_TYPED_PARSER_H
#define ZARN_TYPED_PARSER_H

#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <new>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "zarn/parser.h"
#include "zarn/typed/declaration.h"
#include "zarn/typed/engine.h"
#include "zarn/typed/result.h"
#include "zarn/typed/terminal.h"

namespace zarn_3_3 {

// What most tools with file names want: an argument that nothing declared takes is an error; a
// positional argument does not begin with a dash (of a Parser with any of those that introduce
// options, not the hyphen alone), so that a misspelt option is not taken for one, but behind "--"
// it may; the paths of option files hold commas.
constexpr int usualFlags = flagUnknownIsError | flagPositionalWithoutDash |
                           flagPositionalBehindTerminator | flagValuesStayWhole;

// What the arguments of a command line may look like beside the family's own way. What is a name,
// or begins one, stays that. Combine with |.
enum Habit : unsigned {
    bundles = 0x1,          // "-xvf a.tar" is "-x -v -f a.tar" when each letter is a name
    gluedValues = 0x2,      // "-k2" is "-k=2" when the letter is a name
    negativeNumbers = 0x4,  // "-5" behind an option of a number with sign, or for a positional item
                            // of one, is its value
    loneDash = 0x8,         // "-" is a value, or a positional argument: the standard input
    shortNames = 0x10,      // behind one dash stand letters alone: "-jobs" is none of "--jobs"
};
constexpr unsigned unixHabits = bundles | gluedValues | negativeNumbers | loneDash;

// What `Parser::run` answers.
enum ExitCode : int {
    exitAnswered = 0,    // help or the version was printed
    exitUsage = 2,       // the command line is wrong
    exitUnreadable = 3,  // an option file could not be read
    exitInternal = 4,    // memory ran out, a handler or check threw, or help could not be written
};

// A vocabulary, and what it takes to parse command lines of it.
//
//     zarn::Parser parser({"sonde", "2.1", "look into archives"});
//     parser.declare("Output", {zarn::option<int>("jobs,j", "How many at a time.").into(jobs)});
//     if (const auto ended = parser.run(argc, argv)) {
//         return *ended;
//     }
//
// Everything that IParser offers is reached with ->. Handlers that are registered must outlive the
// last parse, and so must the variables given to `into`. Moving leaves the source to be destroyed
// or assigned to, and nothing else.
//
// Mistakes of the author are a std::logic_error that says what and where, thrown when an item is
// declared or, where that is too early, by the first parse. Exceptions beside it: std::bad_alloc
// when memory runs out, and what a handler or a check throws that does not derive from
// std::exception. With an exception no variable is written.
class Parser final {
public:
    // tool   who is parsing; what is left out is not shown
    // flags  any combination of ParserFlag values, or 0
    explicit Parser(const Tool& tool = {}, int flags = usualFlags)
        : vocabulary_(internal::createVocabulary(tool, flags)),
          name_(tool.name != nullptr ? tool.name : "error") {}

    IParser* operator->() const noexcept { return internal::plainParser(vocabulary_.get()); }
    operator IParser&() const noexcept { return *internal::plainParser(vocabulary_.get()); }

    // Declares the items, in order, in the section of the help that is given as "key:Title" or as
    // the key alone; without one, in a section without heading.
    //
    // A mistake is: a name that is taken, is empty, has a dash in front, a blank or a "=" in it;
    // more than three names, or a third of more than two bytes; a default that the item would
    // refuse. At the first parse: a variable that another item goes into; an action that is not
    // declared.
    template <std::size_t count>
    void declare(const char* section, Item (&&items)[count]) {
        for (Item& item : items) {
            internal::declareItem(vocabulary_.get(), section, item.take());
        }
    }
    template <std::size_t count>
    void declare(Item (&&items)[count]) {
        declare("", std::move(items));
    }

    // Declares "option-file", whose values name files of further arguments; see
    // IParser::addOptionFileOption.
    void readOptionFiles(const char* description, const char* section = "") {
        (*this)->addOptionFileOption(description, section);
        if (nameValue(internal::plainParser(vocabulary_.get()), "option-file", "FILE") !=
            toolingDone) {
            throw std::bad_alloc();
        }
    }

    // Takes arguments in the habits of Unix, too: any combination of Habit values, as unixHabits.
    // Only command lines are taken so, no texts and option files.
    void accept(unsigned habits) noexcept { internal::acceptHabits(vocabulary_.get(), habits); }

    // Has every item that is declared from now on, and goes into a variable for one value, show as
    // its default what the variable holds then, as byDefault() does. Switches and items that are
    // required show none, nor does one that would refuse what the variable holds.
    void showDefaults() noexcept { internal::showDefaults(vocabulary_.get()); }

    // Refuses a command line for which predicate() is not true. It is asked when everything else is
    // right and the variables are written; they are then set back, also when it throws, which ends
    // the parse as a handler's exception does. `reason` is the message. Where an option that is
    // alone() is given, nothing is asked.
    //
    //     parser.check([&] { return !isChecking || files.size() < 2; }, "--check takes one file");
    template <typename Predicate>
    void check(Predicate predicate, std::string reason) {
        static_assert(internal::isPredicate<Predicate>(),
                      "a check of the command line is called without arguments");
        if constexpr (std::is_invocable_r_v<bool, const Predicate&>) {
            internal::addLineCheck(
                vocabulary_.get(),
                new internal::HoldsForLine<Predicate>(std::move(predicate), std::move(reason)));
        }
    }

    // The same with a reason that is made: finder() answers a text, what is wrong, which is empty
    // where nothing is.
    //
    //     parser.check([&] { return isThere(a) ? "" : a + ": it is not there"; });
    template <typename Finder,
              typename = std::enable_if_t<!std::is_convertible_v<Finder, const char*>>>
    void check(Finder finder) {
        constexpr bool isFinder = std::is_invocable_r_v<std::string, const Finder&>;
        static_assert(isFinder, "a check without a reason returns one, called without arguments");
        if constexpr (isFinder) {
            internal::addLineCheck(vocabulary_.get(),
                                   new internal::FindsNoneInLine<Finder>(std::move(finder)));
        }
    }

    // What checkVocabulary finds, one a line; for a test of the tool:
    //
    //     EXPECT_EQ(parser.check(), "");
    //
    // Mistakes are thrown as by the first parse.
    //
    // ignored  ids, or "id:item" for one item, separated by commas
    std::string check(const char* ignored = "") const {
        return internal::findingsIn(vocabulary_.get(), ignored);
    }

    // One of these options must be given, and no other of them.
    void exactlyOne(std::initializer_list<const char*> names) {
        addRule(internal::RuleKind::exactlyOne, names.begin(), names.size());
    }

    // At most one of these options may be given.
    void atMostOne(std::initializer_list<const char*> names) {
        addRule(internal::RuleKind::atMostOne, names.begin(), names.size());
    }

    // All of these options must be given, or none.
    void together(std::initializer_list<const char*> names) {
        addRule(internal::RuleKind::together, names.begin(), names.size());
    }

    // Where the option is given, the others must be, too.
    void needs(const char* name, std::initializer_list<const char*> others) {
        std::vector<const char*> names{name};
        names.insert(names.end(), others.begin(), others.end());
        addRule(internal::RuleKind::needs, names.data(), names.size());
    }

    // Parses a command line as main has it; see IParser::parseArgsVector. When it goes well, the
    // variables are written. When it does not, the result says so; nothing is thrown for what users
    // type. The codes are
    //   resultOk
    //   resultVetoed                a check or a handler refused a value
    //   resultRuleBroken            an argument, a value or a combination of options is wrong
    //   resultException             a standard exception inside, thrown by a handler or a check
    //   resultOptionFileUnreadable  an option file could not be read
    Result parse(int argc, const char* const* argv) {
        return Result(internal::parseLine(vocabulary_.get(), argc, argv));
    }

    // Parses a text of one argument a line; see IParser::parseStream. Otherwise as parse; an
    // exception takes `into` with it.
    //
    // text  null for an empty text
    // into  what is found is added to what it holds; without one, a new result. It has to come
    //       from this parser. Option files that it names are read again
    Result parseStream(const char* text, Result into) {
        return Result(internal::parseText(vocabulary_.get(), text, into.release()));
    }
    Result parseStream(const char* text) {
        return Result(internal::parseText(vocabulary_.get(), text, nullptr));
    }

    // Parses a command line, and does what tools do behind that:
    // - Help and the version are printed to the standard output when they are asked for, whatever
    //   else is wrong: "--help", perhaps with an option or an action behind it, and "--version".
    //   Help is fitted to the terminal; see fitToTerminal.
    //   Each is left to the tool when that declares an option of this name.
    // - A failure is printed to the standard error as "sonde: text", control characters made
    //   visible.
    //
    // The exit code (see ExitCode) when the tool should end. Nothing when it should go on: the
    // variables are then written, and result() tells the rest.
    [[nodiscard]] std::optional<int> run(int argc, const char* const* argv) {
        try {
            internal::Answer answer;
            internal::Outcome* const outcome =
                internal::runLine(vocabulary_.get(), argc, argv, answer, &fitToTerminal);
            result_.emplace(outcome);
            internal::finishRun(outcome, answer);
            std::fflush(stdout);  // what a handler has said comes first
            const bool isPrinted = print(stdout, answer.output) && print(stderr, answer.error);
            return isPrinted ? answer.exitCode : exitInternal;
        } catch (const std::bad_alloc&) {
            std::fprintf(stderr, "%s: out of memory\n", name_);
            return exitInternal;
        }
    }

    // What the last run found. A check of the whole line may ask it, too, within `run`. A mistake,
    // and a std::logic_error, where `run` was not called.
    const Result& result() const {
        if (!result_) {
            internal::mistake("result()", "it is what run has found, and run was not called");
        }
        return *result_;
    }

    // The help that formatHelp writes, of this tool; by default all of it in 80 columns. As run
    // prints it, it is fitted to the terminal:
    //
    //     zarn::HelpStyle style;
    //     zarn::fitToTerminal(style);
    //     std::cout << parser.help(style);
    //
    // With a topic, the help of an option or an action. For a name that is not declared, a text
    // that says so.
    std::string help(const HelpStyle& style = {}) const {
        return internal::pageOf(vocabulary_.get(), style);
    }
    std::string help(const char* topic, HelpStyle style = {}) const {
        style.topic = topic;
        return help(style);
    }
    std::string helpOfAction(const char* action, const HelpStyle& style = {}) const {
        return help(action, style);
    }

private:
    static bool print(std::FILE* stream, const std::string& text) {
        return text.empty() || (std::fwrite(text.data(), 1, text.size(), stream) == text.size() &&
                                std::fflush(stream) == 0);
    }

    void addRule(internal::RuleKind kind, const char* const* names, std::size_t count) {
        internal::addRule(vocabulary_.get(), kind, names, count);
    }

    internal::Owner<internal::Vocabulary, &internal::releaseVocabulary> vocabulary_;
    std::optional<Result> result_;
    const char* name_;
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_PARSER_H
