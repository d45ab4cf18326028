// What the modern face asks of the library: the engine behind its templates.
//
// Tools use the classes of zarn/typed.h, not this. It is part of the binary interface: slots and
// fields stay as they are, new ones come last.

#ifndef ZARN_TYPED_ENGINE_H
#define ZARN_TYPED_ENGINE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zarn/export.h"
#include "zarn/parser.h"
#include "zarn/result.h"
#include "zarn/tooling.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// Who is parsing. The texts must outlive the parser, as literals do; null ones read as empty.
struct Tool {
    const char* name = nullptr;     // in usage lines and in front of messages; empty: that of argv
    const char* version = nullptr;  // empty: "--version" is not answered
    const char* summary = nullptr;  // one line
};

// Where the value of an option that counts comes from.
enum class Origin {
    absent,       // not given, and without a default (or with one whose text is empty)
    byDefault,    // its default
    environment,  // a variable of the environment
    optionFile,   // a line of an option file
    commandLine,  // the command line, or a text given to parseStream
};

// One occurrence of an option: "--include=a,b" is one, with two values when it is cut at ','.
struct Occurrence {
    std::string_view name;      // the name that was asked for
    int position = 0;           // its number in the running sequence; those of its values follow
    std::vector<Value> values;  // none for a switch; see get<T>(value)
};

namespace internal {

// One condition that values must meet, and those asked behind it. Owned, and freed, by the engine
// when its item is declared.
class Check {
public:
    Check() = default;
    Check(const Check&) = delete;
    Check& operator=(const Check&) = delete;
    virtual ~Check() = default;

    // Whether the value meets it; why not, to be put behind a colon, in `reason`.
    virtual bool holds(const Value& value, std::string& reason) const = 0;

    // Whether the answer is the same wherever and whenever the tool runs.
    virtual bool isLasting() const { return true; }

    std::unique_ptr<Check> next;
};

// A variable that is written in two steps, so that those of a vocabulary are written together.
class Target {
public:
    Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    virtual ~Target() = default;

    // Makes ready what is to be written. `values` are the ones that were given, or the one that
    // counts when none was; `count` is at least 1. `last` is the one that counts alone.
    virtual void take(const Value* values, std::size_t count, const Value& last) = 0;

    // Writes what was made ready, if anything was.
    virtual void write() noexcept = 0;

    // Drops what was made ready.
    virtual void drop() noexcept = 0;

    // What the variable holds, as a default.
    virtual variant_t current() const = 0;

    virtual const void* address() const noexcept = 0;

    // Whether it has a place for more than one value.
    virtual bool takesMany() const noexcept = 0;
};

enum class Role : std::int32_t { option, action, positional };

struct AllowedValue {
    variant_t value;
    variant_t replacement;  // empty, unless the value is deprecated
};

// An item to be declared. Its texts are read during the call.
struct ItemDescription {
    Role role;
    das_variant_type_t type;
    const char* names;
    const char* actions;
    const char* description;
    const char* shownName = "";    // empty: the primary name
    const char* environment = "";  // the name of a variable, or empty
    char* (*readVariable)(const char*) = nullptr;
    std::vector<AllowedValue> allowed = {};
    variant_t defaultValue = {};  // empty: none
    variant_t least = {};         // of numbers; empty: no bound
    variant_t greatest = {};
    std::unique_ptr<Check> checks = {};
    std::unique_ptr<Target> target = {};
    char separator = '\0';
    bool isRequired = false;
    bool isAlone = false;
    bool showsTarget = false;  // as its default
};

enum class RuleKind : std::int32_t { exactlyOne, atMostOne, together, needs };

// How a parse ended, and what it found.
struct Outcome {
    int code = 0;
    const char* text = "";
    IParseResult* plain = nullptr;
};

// What a tool is to print, and whether it is to end.
struct Answer {
    std::string output;  // to the standard output
    std::string error;   // to the standard error
    std::optional<int> exitCode;
};

class Vocabulary;

// What the environment of a tool says about its standard output. Null texts are absent.
struct TerminalFacts {
    const char* columns;  // COLUMNS
    const char* kind;     // TERM
    const char* noColor;  // NO_COLOR
    bool isTerminal;
    std::uint32_t width;  // of the terminal; 0: unknown
};

// Throws std::logic_error about the item with these names.
[[noreturn]] ZARN_EXPORT void mistake(const char* names, const std::string& what);

// "it must be between 1 and 64", and with an empty bound "at least" or "at most".
ZARN_EXPORT std::string boundsText(const variant_t& least, const variant_t& greatest);

// The other functions throw std::logic_error for mistakes of the author, and std::bad_alloc.

ZARN_EXPORT Vocabulary* createVocabulary(const Tool& tool, int flags);
ZARN_EXPORT void releaseVocabulary(Vocabulary* vocabulary) noexcept;
ZARN_EXPORT IParser* plainParser(Vocabulary* vocabulary) noexcept;
ZARN_EXPORT void declareItem(Vocabulary* vocabulary, const char* section, ItemDescription& item);
ZARN_EXPORT void acceptHabits(Vocabulary* vocabulary, unsigned habits) noexcept;
ZARN_EXPORT void addRule(Vocabulary* vocabulary,
                         RuleKind kind,
                         const char* const* names,
                         std::size_t count);

// `style.tool` is not looked at: the vocabulary knows its tool.
ZARN_EXPORT std::string pageOf(Vocabulary* vocabulary, const HelpStyle& style);
ZARN_EXPORT void fitStyle(HelpStyle& style, const TerminalFacts& facts) noexcept;

// The outcomes are freed with releaseOutcome. They keep what they need of the vocabulary.
ZARN_EXPORT Outcome* parseLine(Vocabulary* vocabulary, int argc, const char* const* argv);
ZARN_EXPORT Outcome* parseText(Vocabulary* vocabulary, const char* text, Outcome* into);
ZARN_EXPORT Outcome* runLine(Vocabulary* vocabulary,
                             int argc,
                             const char* const* argv,
                             Answer& answer,
                             void (*fit)(HelpStyle&));
ZARN_EXPORT void releaseOutcome(Outcome* outcome) noexcept;

// `last` is the value that counts, not found when there is none; `all`, which may be null, receives
// those that were given, or that one.
ZARN_EXPORT Origin findValues(const Outcome* outcome,
                              const char* name,
                              Value& last,
                              std::vector<Value>* all);
ZARN_EXPORT std::vector<Occurrence> findOccurrences(const Outcome* outcome,
                                                    const char* const* names,
                                                    std::size_t count);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_TYPED_ENGINE_H
