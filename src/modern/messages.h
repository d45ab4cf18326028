// What users are told by the modern face alone, and what authors are told of their mistakes.

#ifndef ZARN_MODERN_MESSAGES_H
#define ZARN_MODERN_MESSAGES_H

#include <string>
#include <string_view>

#include "modern/item_record.h"
#include "text/filled.h"

namespace zarn_3_3::internal::messages {

// Reasons, which stand behind the message that a value was refused.

inline std::string numberBetween(std::string_view least, std::string_view greatest) {
    return filled("it must be between {} and {}", {least, greatest});
}
inline std::string numberAtLeast(std::string_view least) {
    return filled("it must be at least {}", {least});
}
inline std::string numberAtMost(std::string_view greatest) {
    return filled("it must be at most {}", {greatest});
}
inline std::string wholeNumberOf(std::string_view unit) {
    return filled("it must be a whole number of {}", {unit});
}
constexpr const char* noDuration = "it must be a number with a unit, as in 250ms, 10s, 5m or 1.5h";
constexpr const char* noBytes = "it must be a number of bytes, as in 4096, 64K, 2MiB or 1.5GB";
constexpr const char* noNumber = "it must be a number, as in 31, 0x1F or 1fh";
constexpr const char* noBoolean = "it must be 1, true, yes, on, 0, false, no or off";

inline std::string withReason(std::string_view message, std::string_view reason) {
    return filled("{}: {}", {message, reason});
}

// What run adds to a message.

inline std::string atLine(std::string_view file, std::string_view line, std::string_view message) {
    return filled("{}:{}: {}", {file, line, message});
}
inline std::string didYouMean(std::string_view message, std::string_view suggestions) {
    return filled("{}. Did you mean {}?", {message, suggestions});
}

// Command lines that the plain interface would take, or take otherwise.

inline std::string unexpectedArgument(std::string_view argument) {
    return filled("Unexpected argument: {}", {argument});
}
inline std::string givenByPlace(std::string_view name) {
    return filled("Argument '{}' is given by its place, without its name", {name});
}
inline std::string emptyArgument(std::string_view name) {
    return filled("Argument '{}' is empty", {name});
}

// Rules.

// "Option '--jobs'", "Action '--pack'", "Argument 'FILE'"
inline std::string first(const ItemRecord& item) {
    const char* const kinds[] = {"Option '", "Action '", "Argument '"};
    return filled("{}{}'", {kinds[static_cast<int>(item.role)], item.called()});
}
// The same within a sentence.
inline std::string second(const ItemRecord& item) {
    const char* const kinds[] = {"option '", "action '", "argument '"};
    return filled("{}{}'", {kinds[static_cast<int>(item.role)], item.called()});
}
inline std::string isRequired(const ItemRecord& item) {
    return filled("{} is required", {first(item)});
}
inline std::string oneRequired(std::string_view names) {
    return filled("One of {} is required", {names});
}
inline std::string exclude(const ItemRecord& item, const ItemRecord& other) {
    return filled("{} does not go with {}", {first(item), second(other)});
}
inline std::string differ(const ItemRecord& item, std::string_view one, std::string_view other) {
    return filled("{} takes one value, not '{}' and '{}'", {first(item), one, other});
}
inline std::string needs(const ItemRecord& item, const ItemRecord& other) {
    return filled("{} requires {}", {first(item), second(other)});
}
inline std::string takesNo(const ItemRecord& action, const ItemRecord& item) {
    return filled("{} takes no {}", {first(action), second(item)});
}

// Mistakes of the author.

inline std::string mistakeAt(std::string_view names, std::string_view what) {
    return filled("zarn: '{}': {}", {names, what});
}
constexpr const char* nameEmpty = "a name is empty";
inline std::string nameUntypable(std::string_view name) {
    return filled("the name '{}' begins with a dash, or holds a blank or '='", {name});
}
constexpr const char* tooManyNames = "there are more than three names";
inline std::string thirdNameLong(std::string_view name) {
    return filled("the third name, '{}', is longer than two bytes", {name});
}
inline std::string nameTaken(std::string_view name, std::string_view owner) {
    return filled("the name '{}' is taken by '{}'", {name, owner});
}
inline std::string variableTaken(std::string_view owner) {
    return filled("its variable is that of '{}'", {owner});
}
constexpr const char* noVariable =
    "byDefault() shows a variable for one value, and into() names none";
constexpr const char* otherActions = "all positional items go with the same actions";
inline std::string nameTwice(std::string_view name) {
    return filled("the name '{}' is given twice", {name});
}
constexpr const char* emptyText = "it is empty";
constexpr const char* notAllowed = "it is not among its allowed values";
inline std::string defaultRefused(std::string_view reason) {
    return filled("its default is refused: {}", {reason});
}
inline std::string impliedRefused(std::string_view reason) {
    return filled("what it is without a value is refused: {}", {reason});
}
inline std::string noSuchAction(std::string_view action) {
    return filled("no action has the primary name '{}'", {action});
}
constexpr const char* noSuchOption = "no option of this name is declared";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_MODERN_MESSAGES_H
