// How a result is read: one walk at a time, over the values of one option in a range of numbers.

#include <algorithm>

#include "result/parse_result.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// The index of the first of `count` elements, from `cursor` on, whose number is not below `from`.
template <typename NumberAt>
std::size_t skipBelow(
    std::size_t count, std::size_t cursor, int from, bool isAscending, NumberAt numberAt) {
    if (!isAscending) {
        while (cursor < count && numberAt(cursor) < from) {
            ++cursor;
        }
    }
    if (cursor >= count || numberAt(cursor) >= from) {
        return std::min(cursor, count);  // as nearly always when a walk goes on
    }
    // A range may begin anywhere in a long list; halving finds it.
    std::size_t end = count;
    while (cursor != end) {
        const std::size_t middle = cursor + (end - cursor) / 2;
        if (numberAt(middle) < from) {
            cursor = middle + 1;
        } else {
            end = middle;
        }
    }
    return cursor;
}

std::size_t skipOccurrences(const StoredOption& entry, std::size_t cursor, int from) {
    return skipBelow(
        entry.occurrences(), cursor, from, entry.isAscending(), [&](std::size_t index) {
            return entry.occurrence(index);
        });
}

std::size_t skipValues(const StoredOption& entry, std::size_t cursor, int from) {
    return skipBelow(entry.size(), cursor, from, entry.isAscending(), [&](std::size_t index) {
        return entry.positionOf(index);
    });
}

// The index of the first occurrence p with from <= p < to, or the number of occurrences.
std::size_t firstOccurrence(const StoredOption& entry, int from, int to) {
    const std::size_t count = entry.occurrences();
    if (count == 0) {
        return 0;
    }
    const int first = entry.occurrence(0);
    if (from <= first && first < to) {
        return 0;  // as nearly always: the whole line is asked for
    }
    std::size_t found = skipOccurrences(entry, 0, from);
    // The first one from `from` on may lie behind the range already. In ascending order so do all
    // that follow; otherwise one of them may still be inside.
    while (found < count && entry.occurrence(found) >= to) {
        found = entry.isAscending() ? count : skipOccurrences(entry, found + 1, from);
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

int ParseResult::nextPosition() {
    const StoredOption* const entry = selected();
    if (entry == nullptr || positionCursor >= entry->occurrences()) {
        return lastPosition;
    }
    return entry->occurrence(positionCursor++);
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
    if (positionCursor == entry->occurrences()) {
        return {};
    }
    return wanted == Wanted::value ? step(*entry) : Value(nullptr, {}, 0);
}

// The walk goes on under the name that was asked for last, whatever this one is.
Value ParseResult::next(const char* /*name*/) {
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
    return step(*entry);
}

Value ParseResult::step(const StoredOption& entry) {
    return entry.size() == 0 ? stepOccurrence(entry) : stepValue(entry);
}

// Whatever the range: an option without values has only its occurrences to walk.
Value ParseResult::stepOccurrence(const StoredOption& entry) {
    if (positionCursor >= entry.occurrences()) {
        return {};
    }
    return {nullptr, {}, entry.occurrence(positionCursor++)};
}

// Values count up to and with the end of the range, occurrences without it; tools rely on both.
Value ParseResult::stepValue(const StoredOption& entry) {
    const std::size_t count = entry.size();
    if (valueCursor >= count || entry.positionOf(valueCursor) < rangeFrom) {
        valueCursor = skipValues(entry, valueCursor, rangeFrom);
    }
    if (valueCursor == count || entry.positionOf(valueCursor) > rangeTo) {
        return {};
    }
    return entry[valueCursor++];
}

}  // namespace zarn_3_3
