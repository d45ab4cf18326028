// What the modern face asks of the library: the engine behind its templates.
//
// Tools use the classes of zarn/typed.h, not this. It is part of the binary interface: slots and
// fields stay as they are, new ones come last.

#ifndef ZARN_TYPED_ENGINE_H
#define ZARN_TYPED_ENGINE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

// What the engine made for the modern face, and frees.
template <typename T, void (*release)(T*) noexcept>
class Owner final {
public:
    explicit Owner(T* owned) noexcept : owned_(owned) {}
    Owner(Owner&& other) noexcept : owned_(other.take()) {}
    Owner& operator=(Owner&& other) noexcept {
        std::swap(owned_, other.owned_);
        return *this;
    }
    ~Owner() {
        if (owned_ != nullptr) {
            release(owned_);
        }
    }

    T* get() const noexcept { return owned_; }
    T* operator->() const noexcept { return owned_; }
    T* take() noexcept { return std::exchange(owned_, nullptr); }

private:
    T* owned_;
};

// One condition that values must meet, and those asked behind it. Freed by the engine.
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

    Check* next = nullptr;
};

// What a variable is made of.
struct Given {
    const Value* values;   // those that were given, or the one that counts; null unless takesMany
    std::size_t count;     // of them; at least 1
    const Value& last;     // the one that counts alone
    const void* constant;  // what is stored in place of a value, or null
};

// How variables of one type are written: in two steps, so that those of a vocabulary are written
// together.
struct TargetKind {
    std::size_t size;  // of a value

    // Makes a new value for the variable, at a place as aligned as operator new has it.
    void (*make)(void* place, const Given& given);

    // Exchanges it with what the variable holds.
    void (*exchange)(void* variable, void* made) noexcept;

    void (*destroy)(void* made) noexcept;

    // What the variable holds, as a default; empty where that cannot be shown.
    variant_t (*current)(const void* variable);

    // Whether it has a place for more than one value.
    bool takesMany;
};

enum class Role : std::int32_t { option, action, positional };

struct AllowedValue {
    variant_t value;
    variant_t replacement;  // empty, unless the value is deprecated
};

// A value of whatever type, owned.
struct Constant {
    Constant() = default;
    Constant(const Constant&) = delete;
    Constant& operator=(const Constant&) = delete;
    ~Constant() { hold(nullptr, release); }

    void hold(void* newValue, void (*newRelease)(void*) noexcept) noexcept {
        if (value != nullptr) {
            release(value);
        }
        value = newValue;
        release = newRelease;
    }

    void* value = nullptr;
    void (*release)(void*) noexcept = nullptr;
};

// What most items do without.
struct Extras {
    std::vector<AllowedValue> allowed = {};
    variant_t defaultValue = {};  // empty: none
    variant_t least = {};         // of numbers; empty: what the type holds
    variant_t greatest = {};
    variant_t impliedValue = {};   // of the option without a value; empty: it needs one
    Constant constant = {};        // what goes into the variable of a switch
    const char* environment = "";  // the name of a variable, or empty
    char* (*readVariable)(const char*) = nullptr;
};

// An item to be declared, made by beginItem. Its texts are read when it is.
struct ItemDescription {
    Role role = Role::option;
    das_variant_type_t type = vtNull;
    const char* names = "";
    const char* actions = "";
    const char* description = "";
    const char* shownName = "";  // empty: the primary name
    const TargetKind* target = nullptr;
    void* variable = nullptr;
    char separator = '\0';
    bool isRequired = false;
    bool isAlone = false;
    bool showsTarget = false;  // as its default
    bool isOnce = false;       // for all that share its variable
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

// The texts are not copied.
ZARN_EXPORT ItemDescription* beginItem(Role role,
                                       das_variant_type_t type,
                                       const char* names,
                                       const char* actions,
                                       const char* description);
ZARN_EXPORT void releaseItem(ItemDescription* item) noexcept;

// What the item has of them, to be changed.
ZARN_EXPORT Extras& extrasOf(ItemDescription* item);

// Adds to the values that the item accepts; `replacement` is empty unless this one is deprecated.
ZARN_EXPORT void allowValue(ItemDescription* item,
                            const variant_t& value,
                            const variant_t& replacement);

// Puts the check, which it owns from then on, behind those of the item.
ZARN_EXPORT void addCheck(ItemDescription* item, Check* check) noexcept;

// Takes the item, whether it is declared or throws.
ZARN_EXPORT void declareItem(Vocabulary* vocabulary, const char* section, ItemDescription* item);

// Has items that are declared from now on show their variables as defaults.
ZARN_EXPORT void showDefaults(Vocabulary* vocabulary) noexcept;

// Puts the check, which it owns from then on, behind the others of a whole command line. It is
// asked without a value, when the variables are written.
ZARN_EXPORT void addLineCheck(Vocabulary* vocabulary, Check* check) noexcept;

ZARN_EXPORT void acceptHabits(Vocabulary* vocabulary, unsigned habits) noexcept;
ZARN_EXPORT void addRule(Vocabulary* vocabulary,
                         RuleKind kind,
                         const char* const* names,
                         std::size_t count);

// See checkVocabulary; `ignored` may be null.
ZARN_EXPORT std::string findingsIn(Vocabulary* vocabulary, const char* ignored);

// `style.tool` is not looked at: the vocabulary knows its tool.
ZARN_EXPORT std::string pageOf(Vocabulary* vocabulary, const HelpStyle& style);
ZARN_EXPORT void fitStyle(HelpStyle& style, const TerminalFacts& facts) noexcept;

// The outcomes are freed with releaseOutcome. They keep what they need of the vocabulary.
ZARN_EXPORT Outcome* parseLine(Vocabulary* vocabulary, int argc, const char* const* argv);
ZARN_EXPORT Outcome* parseText(Vocabulary* vocabulary, const char* text, Outcome* into);

// Parses without writing variables; finishRun does that.
ZARN_EXPORT Outcome* runLine(Vocabulary* vocabulary,
                             int argc,
                             const char* const* argv,
                             Answer& answer,
                             void (*fit)(HelpStyle&));

// Apart from it, so that the checks of the line may look at the outcome. Nothing is done when there
// is an answer already.
ZARN_EXPORT void finishRun(Outcome* outcome, Answer& answer);
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
