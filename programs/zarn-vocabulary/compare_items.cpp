// The items by themselves: which there are, and what each of them is.

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "comparison.h"

namespace vocabulary {
namespace {

constexpr std::array typeWords{
    "no value", "a boolean", "int32", "uint32", "int64", "uint64", "double", "text"};

std::string wordOf(Type type) { return typeWords[static_cast<std::size_t>(type)]; }

bool isNumber(Type type) {
    return type != Type::toggle && type != Type::boolean && type != Type::text;
}

// Whether a line is taken as before, with the same values. What is read as a number of 64 bits has
// more digits than a double. A number without sign is thought of as typed without one.
bool isWider(const Item& before, const Item& after) {
    const Type to = after.type;
    switch (before.type) {
        case Type::toggle:
            return to == Type::boolean;
        case Type::int32:
            if (to == Type::int64 || to == Type::real) {
                return true;
            }
            break;
        case Type::uint32:
            if (to == Type::int64 || to == Type::uint64 || to == Type::real) {
                return true;
            }
            break;
        default:
            break;
    }
    // "016" is the number 16, and another text.
    return isNumber(before.type) && to == Type::text && after.values.empty();
}

void compareTypes(const Comparison& comparison, const Item& before, const Item& after) {
    const std::string name = primaryName(before);
    const std::string what =
        "it takes " + wordOf(after.type) + ", where it took " + wordOf(before.type);
    if (isWider(before, after)) {
        comparison.changes.compatible("type-widened", name, what);
    } else {
        comparison.changes.breaking("type-changed", name, what);
    }
}

void compareDefaults(const Comparison& comparison, const Item& before, const Item& after) {
    // A switch that is not given is off, like a boolean by this default.
    const bool isSame = before.defaultValue == after.defaultValue ||
                        (before.type == Type::toggle && before.defaultValue.empty() &&
                         after.type == Type::boolean && after.defaultValue == "0");
    if (!isSame) {
        const auto shown = [](const Item& item) {
            return item.defaultValue.empty() ? "none" : quoted(item.defaultValue);
        };
        comparison.changes.breaking(
            "default-changed",
            primaryName(before),
            "its default is " + shown(after) + ", where it was " + shown(before));
    }
}

// Whether a value that the item takes may hold the character.
bool canHold(const Item& item, char mark) {
    if (item.type == Type::text && !item.values.empty()) {
        const auto holds = [mark](const std::string& value) {
            return value.find(mark) != std::string::npos;
        };
        return std::any_of(item.values.begin(), item.values.end(), holds) ||
               std::any_of(item.deprecated.begin(),
                           item.deprecated.end(),
                           [&holds](const auto& each) { return holds(each.value); });
    }
    const auto byte = static_cast<unsigned char>(mark);
    const bool isOfNumbers = std::isalnum(byte) != 0 || std::isspace(byte) != 0 || mark == '+' ||
                             mark == '-' || mark == '.';
    // What stands behind a number of the type uint64 is not looked at.
    return item.type == Type::text || item.type == Type::uint64 || isOfNumbers;
}

void compareSeparators(const Comparison& comparison, const Item& before, const Item& after) {
    if (before.separator == after.separator) {
        return;
    }
    const std::string name = primaryName(before);
    if (before.separator.empty() && !canHold(before, after.separator.front())) {
        comparison.changes.compatible(
            "separator-added", name, "several values are taken, cut at " + quoted(after.separator));
        return;
    }
    comparison.changes.breaking("separator-changed",
                                name,
                                after.separator.empty()
                                    ? "values are not cut any more"
                                    : "values are cut at " + quoted(after.separator) + " now");
}

// A value that a user types, where that of a boolean follows from its name.
bool takesValue(const Item& item) {
    return item.type != Type::toggle && (item.type != Type::boolean || item.isPositional);
}

void comparePair(const Comparison& comparison, const Item& before, const Item& after) {
    if (before.type != after.type) {
        compareTypes(comparison, before, after);
    }
    compareDefaults(comparison, before, after);
    if (before.type == after.type || isWider(before, after)) {
        if (takesValue(after)) {
            compareSeparators(comparison, before, after);
        }
        if (after.type != Type::toggle) {
            compareValues(comparison, before, after);
        }
    }
    const std::string name = primaryName(before);
    if (before.isOptionFile && !after.isOptionFile) {
        comparison.changes.breaking("option-file-gone", name, "it names no option files any more");
    } else if (!before.isOptionFile && after.isOptionFile) {
        comparison.changes.breaking("option-file-new", name, "its values name option files now");
    }
}

}  // namespace

void compare(const Description& before, const Description& after, Changes& changes) {
    const Comparison comparison{before, after, Pairing(before.items, after.items), changes};
    for (std::size_t i = 0; i < before.items.size(); ++i) {
        if (comparison.pairing.after(i) == Pairing::none) {
            changes.breaking("item-gone", primaryName(before.items[i]), "it is not there any more");
        }
    }
    compareNames(comparison);
    forEachPair(comparison,
                [&](const Item& old, const Item& next) { comparePair(comparison, old, next); });
    compareActions(comparison);
    comparePositionals(comparison);
    compareFlags(comparison);
    for (std::size_t i = 0; i < after.items.size(); ++i) {
        if (comparison.pairing.before(i) == Pairing::none) {
            changes.compatible("item-added", primaryName(after.items[i]), "it is new");
        }
    }
    compareTexts(comparison);
}

}  // namespace vocabulary
