// What a new version of a tool does to the users of the old one.

#ifndef ZARN_VOCABULARY_COMPARISON_H
#define ZARN_VOCABULARY_COMPARISON_H

#include <cstddef>

#include "changes.h"
#include "description.h"
#include "names.h"
#include "pairing.h"

namespace vocabulary {

// All that the parts of a comparison see.
struct Comparison {
    const Description& before;
    const Description& after;
    Pairing pairing;
    Changes& changes;
};

void compare(const Description& before, const Description& after, Changes& changes);

// The parts. Names and allowed texts, whole and abbreviated:
void compareNames(const Comparison& comparison);
void compareValues(const Comparison& comparison, const Item& before, const Item& after);
// which actions there are, and what goes with them:
void compareActions(const Comparison& comparison);
// what takes the arguments that are no options, and the flags of the parser:
void comparePositionals(const Comparison& comparison);
void compareFlags(const Comparison& comparison);
// what only help shows:
void compareTexts(const Comparison& comparison);

// Whether there is an item for `isSuch`.
template <typename IsSuch>
bool hasItem(const Description& description, IsSuch isSuch) {
    for (const Item& item : description.items) {
        if (isSuch(item)) {
            return true;
        }
    }
    return false;
}

inline bool isAction(const Item& item) { return item.kind == Kind::action; }
inline bool isPositional(const Item& item) { return item.isPositional; }

// Calls visit(before, after) for each pair, in the order of the old items.
template <typename Visit>
void forEachPair(const Comparison& comparison, Visit visit) {
    for (std::size_t i = 0; i < comparison.before.items.size(); ++i) {
        const std::size_t after = comparison.pairing.after(i);
        if (after != Pairing::none) {
            visit(comparison.before.items[i], comparison.after.items[after]);
        }
    }
}

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_COMPARISON_H
