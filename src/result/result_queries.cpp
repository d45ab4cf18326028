// How a result is read: one walk at a time, over the values of one option in a range of numbers.

#include <algorithm>

#include "result/parse_result.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// The index of the first element, from `cursor` on, whose number is not below `from`.
template <typename Element>
std::size_t skipBelow(const std::vector<Element>& elements,
                      std::size_t cursor,
                      int from,
                      bool isAscending) {
    const auto isBelow = [from](const Element& element) { return numberOf(element) < from; };
    if (cursor >= elements.size() || !isBelow(elements[cursor])) {
        return std::min(cursor, elements.size());  // as nearly always when a walk goes on
    }
    const auto start = elements.begin() + static_cast<std::ptrdiff_t>(cursor);
    // A range may begin anywhere in a long list; halving finds it, where the order allows that.
    const auto found = isAscending ? std::partition_point(start, elements.end(), isBelow)
                                   : std::find_if_not(start, elements.end(), isBelow);
    return static_cast<std::size_t>(found - elements.begin());
}

// The index of the first occurrence p with from <= p < to, or the number of occurrences.
std::size_t firstOccurrence(const StoredOption& entry, int from, int to) {
    const std::vector<int>& positions = entry.positions;
    std::size_t found = skipBelow(positions, 0, from, entry.isAscending);
    // The first one from `from` on may lie behind the range already. In ascending order so do all
    // that follow; otherwise one of them may still be inside.
    while (found < positions.size() && positions[found] >= to) {
        found = entry.isAscending ? positions.size()
                                  : skipBelow(positions, found + 1, from, entry.isAscending);
    }
    return found;
}

Value defaultOf(const StoredOption& entry) {
    return {entry.defaultText, entry.defaultVariant, entry.defaultPosition};
}

}  // namespace

bool ParseResult::present(const char* name, int from, int to) {
    if (select(name, from, to, Wanted::presence).status != statusFound) {
        return false;
    }
    if (selected()->isDefaultOnly()) {
        // Lets the next step deliver the default, once.
        rangeFrom = lastPosition;
        rangeTo = lastPosition;
    }
    return true;
}

Value ParseResult::get(const char* name, int from, int to) {
    return select(name, from, to, Wanted::value);
}

Value ParseResult::next(const char* /*name*/) { return step(); }

int ParseResult::nextPosition() {
    const StoredOption* const entry = selected();
    if (entry == nullptr || positionCursor >= entry->positions.size()) {
        return lastPosition;
    }
    return entry->positions[positionCursor++];
}

int ParseResult::getFirstArgument(const char** out) {
    if (out == nullptr) {
        return statusException;
    }
    if (arguments.empty()) {
        return statusNotFound;
    }
    argumentCursor = 0;
    return getNextArgument(out);
}

int ParseResult::getNextArgument(const char** out) {
    if (out == nullptr) {
        return statusException;
    }
    if (argumentCursor >= arguments.size()) {
        return statusNotFound;
    }
    *out = arguments[argumentCursor++];
    return statusFound;
}

const StoredOption* ParseResult::selected() const {
    return current == none ? nullptr : &options[current];
}

Value ParseResult::select(const char* name, int from, int to, Wanted wanted) {
    rangeFrom = from;
    rangeTo = to;
    current = name == nullptr ? none : findIndex(name);
    const StoredOption* const entry = selected();
    if (entry == nullptr) {
        return {};
    }
    valueCursor = 0;
    positionCursor = 0;
    if (entry->isDefaultOnly()) {
        return defaultOf(*entry);
    }
    positionCursor = firstOccurrence(*entry, from, to);
    if (positionCursor == entry->positions.size()) {
        return {};
    }
    return wanted == Wanted::value ? step() : Value(nullptr, {}, 0);
}

Value ParseResult::step() {
    const StoredOption* const entry = selected();
    if (entry == nullptr) {
        return {};
    }
    if (entry->isDefaultOnly()) {
        // The range doubles as a mark: this one selects nothing, and only `present` leaves it
        // behind.
        if (rangeFrom != lastPosition || rangeTo != lastPosition) {
            return {};
        }
        rangeFrom = 0;
        return defaultOf(*entry);
    }
    return entry->values.empty() ? stepOccurrence(*entry) : stepValue(*entry);
}

// Whatever the range: an option without values has only its occurrences to walk.
Value ParseResult::stepOccurrence(const StoredOption& entry) {
    if (positionCursor >= entry.positions.size()) {
        return {};
    }
    return {nullptr, {}, entry.positions[positionCursor++]};
}

// Values count up to and with the end of the range, occurrences without it; tools rely on both.
Value ParseResult::stepValue(const StoredOption& entry) {
    valueCursor = skipBelow(entry.values, valueCursor, rangeFrom, entry.isAscending);
    if (valueCursor == entry.values.size() || entry.values[valueCursor].position > rangeTo) {
        return {};
    }
    const StoredValue& value = entry.values[valueCursor++];
    return {value.text, value.value, value.position};
}

}  // namespace zarn_3_3
