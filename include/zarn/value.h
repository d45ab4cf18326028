// One parsed value, as handlers hear it and queries return it.

#ifndef ZARN_VALUE_H
#define ZARN_VALUE_H

#include "plinth2/variant.h"
#include "zarn/export.h"

namespace zarn_3_3 {

using plinth2::das_variant_type_t;
using plinth2::variant_t;
using plinth2::vtBlob;
using plinth2::vtBool;
using plinth2::vtDouble;
using plinth2::vtNull;
using plinth2::vtObject;
using plinth2::vtS32;
using plinth2::vtS64;
using plinth2::vtString;
using plinth2::vtStringRef;
using plinth2::vtU32;
using plinth2::vtU64;
using plinth2::vtWString;
using plinth2::vtWStringRef;

// What a query of a result answers.
enum QueryStatus : int {
    statusFound = 0,
    statusNotFound = 1,   // or no further value
    statusException = 3,  // a standard exception was caught inside the query
};

// A plain record; the comment of each operation that hands one out says what its fields hold.
//
// `text` is never owned. In EventHandler::onValueParse it is valid during the call only; from a
// result it is valid until that result is destroyed. `value` shares its data with other copies, and
// is valid by itself.
struct ZARN_EXPORT Value {
    // Nothing found: no text, status statusNotFound, position lineEnd (2147483647), an empty value.
    Value() noexcept = default;

    // A value that was found: status statusFound. Keeps the pointer to the text, and copies the
    // value.
    Value(const char* foundText, const variant_t& foundValue, int foundPosition) noexcept;

    Value(const Value&) noexcept = default;
    Value(Value&&) noexcept = default;
    Value& operator=(const Value&) noexcept = default;
    Value& operator=(Value&&) noexcept = default;
    ~Value() = default;

    // as<const char*>(): the text when status is statusFound, null otherwise. No other T links;
    // read converted values from `value`.
    template <typename T>
    T as() const noexcept;

    const char* text = nullptr;  // as typed; an abbreviated allowed value in full; null: a switch
    int status = statusNotFound;
    int position = 2147483647;  // its number in the sequence that IParseResult describes
    variant_t value;            // converted to the declared type of its option
};

template <>
ZARN_EXPORT const char* Value::as<const char*>() const noexcept;

}  // namespace zarn_3_3

#endif  // ZARN_VALUE_H
