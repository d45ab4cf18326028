// Everything that a result holds under one name.

#ifndef ZARN_RESULT_STORED_OPTION_H
#define ZARN_RESULT_STORED_OPTION_H

#include <string_view>
#include <vector>

#include "zarn/value.h"

namespace zarn_3_3::internal {

// A result holds one of these for every value, so the position stands in the bytes that a variant_t
// leaves free at its end.
struct StoredValue {
    StoredValue(const variant_t& converted, const char* keptText, int number)
        : value(converted), position(number), text(keptText) {}

    [[no_unique_address]] variant_t value;
    int position;
    const char* text;  // belongs to the result, or to the value where that holds the same
};

static_assert(sizeof(StoredValue) == sizeof(variant_t) + sizeof(const char*));

inline int numberOf(int position) { return position; }
inline int numberOf(const StoredValue& value) { return value.position; }

struct StoredOption {
    std::string_view name;       // kept by the result
    std::vector<int> positions;  // of occurrences; a switch has only these
    std::vector<StoredValue> values;
    const char* defaultText = "";
    variant_t defaultVariant;
    int defaultPosition = 0;

    // Whether both lists are in the order of their numbers. They nearly always are; but a handler
    // that parses into the same result inside an event stores what comes later first, and an item
    // with the same name twice stores the values of each occurrence twice.
    bool isAscending = true;

    // Not given, but with a default. One whose text is empty does not count.
    bool isDefaultOnly() const { return positions.empty() && *defaultText != '\0'; }
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RESULT_STORED_OPTION_H
