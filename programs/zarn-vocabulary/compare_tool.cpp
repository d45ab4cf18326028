// What holds of the tool as a whole: the arguments that are no options, and the flags.

#include <algorithm>
#include <string>
#include <vector>

#include "comparison.h"
#include "zarn/zarn.h"

namespace vocabulary {
namespace {

using Places = std::vector<std::size_t>;

Places positionalsOf(const Description& description) {
    Places places;
    for (std::size_t i = 0; i < description.items.size(); ++i) {
        if (description.items[i].isPositional) {
            places.push_back(i);
        }
    }
    return places;
}

bool hasFlag(const Description& description, int flag) { return (description.flags & flag) != 0; }

// Nothing is unknown then: the positional item takes whatever names no option.
bool takesAll(const Description& description) {
    return hasItem(description, isPositional) &&
           !hasFlag(description, zarn::flagPositionalWithoutDash);
}

// A new name takes away from the positional item what begins with a dash.
void compareTaken(const Comparison& comparison) {
    if (!takesAll(comparison.before)) {
        return;
    }
    std::vector<std::string> known;
    for (const Item& item : comparison.before.items) {
        const std::vector<std::string> forms = formsOf(item);
        known.insert(known.end(), forms.begin(), forms.end());
    }
    std::sort(known.begin(), known.end());
    for (const Item& item : comparison.after.items) {
        for (const std::string& form : formsOf(item)) {
            if (!std::binary_search(known.begin(), known.end(), form)) {
                comparison.changes.breaking(
                    "argument-taken",
                    primaryName(item),
                    quoted(typedName(form)) + " is an option now, and was an argument for " +
                        quoted(primaryName(
                            comparison.before.items[positionalsOf(comparison.before).front()])));
            }
        }
    }
}

std::string namesAt(const Places& places, const Description& description) {
    std::string names;
    for (const std::size_t place : places) {
        names += (names.empty() ? "" : ", ") + quoted(primaryName(description.items[place]));
    }
    return names;
}

// How a change of a flag reaches those who use the tool; nothing where it does not.
struct FlagChange {
    int flag;
    const char* whenSet;
    const char* whenCleared;
};

constexpr FlagChange flagChanges[] = {
    {zarn::flagUnknownIsError,
     "an argument that nothing takes is an error now",                      "an argument that nothing takes is skipped"                         },
    {zarn::flagPositionalBehindTerminator,
     "arguments behind '--' go to the positional item now",                 "arguments behind '--' do not go to the positional item any more"   },
    {zarn::flagPositionalWithoutDash,
     "the positional item takes nothing that begins with a dash any more",  "the positional item takes what begins with a dash and is no option"},
    {zarn::flagPositionalTakesRest,
     "the positional item takes the rest of the line now, options and all", "the positional item does not take the rest of the line any more"   },
};

Severity severityOf(const Comparison& comparison, int flag) {
    const bool isSet = hasFlag(comparison.after, flag);
    const bool hadPositional = hasItem(comparison.before, isPositional);
    if (flag == zarn::flagUnknownIsError) {
        if (!isSet) {
            return Severity::compatible;
        }
        return takesAll(comparison.before) ? Severity::text : Severity::breaking;
    }
    if (flag == zarn::flagPositionalWithoutDash && hadPositional) {
        return isSet ? Severity::breaking : Severity::compatible;
    }
    // Without a positional item, what stands behind "--" was taken, and nothing came of it.
    const bool takesMore = flag == zarn::flagPositionalBehindTerminator && isSet &&
                           hasItem(comparison.after, isPositional);
    return hadPositional || takesMore ? Severity::breaking : Severity::text;
}

void tellFlag(const Comparison& comparison, const FlagChange& change) {
    const std::string item = std::to_string(change.flag);
    const char* const what =
        hasFlag(comparison.after, change.flag) ? change.whenSet : change.whenCleared;
    switch (severityOf(comparison, change.flag)) {
        case Severity::breaking:
            return comparison.changes.breaking("flag-changed", item, what);
        case Severity::compatible:
            return comparison.changes.compatible("flag-relaxed", item, what);
        case Severity::text:
            return comparison.changes.text("flag-unnoticed", item, what);
    }
}

}  // namespace

void comparePositionals(const Comparison& comparison) {
    compareTaken(comparison);
    const Places before = positionalsOf(comparison.before);
    const Places after = positionalsOf(comparison.after);
    Places expected;
    for (const std::size_t place : before) {
        const std::size_t now = comparison.pairing.after(place);
        if (now == Pairing::none || !comparison.after.items[now].isPositional) {
            comparison.changes.breaking("positional-gone",
                                        primaryName(comparison.before.items[place]),
                                        "it takes no arguments without its name any more");
        } else {
            expected.push_back(now);
        }
    }
    if (before.empty() && !after.empty()) {
        comparison.changes.compatible("positional-added",
                                      primaryName(comparison.after.items[after.front()]),
                                      "it takes the arguments that are no options");
    } else if (expected != after) {
        comparison.changes.breaking("positional-moved",
                                    primaryName(comparison.before.items[before.front()]),
                                    "arguments that are no options now go to " +
                                        namesAt(after, comparison.after) + ", and went to " +
                                        namesAt(before, comparison.before));
    }
}

void compareFlags(const Comparison& comparison) {
    for (const FlagChange& change : flagChanges) {
        if (hasFlag(comparison.before, change.flag) != hasFlag(comparison.after, change.flag)) {
            tellFlag(comparison, change);
        }
    }
    // What it does to values stands in their items.
    constexpr int whole = zarn::flagValuesStayWhole;
    if (hasFlag(comparison.before, whole) != hasFlag(comparison.after, whole)) {
        comparison.changes.text("flag-unnoticed",
                                std::to_string(whole),
                                "values are cut, or not, unless an item says otherwise");
    }
}

}  // namespace vocabulary
