// The C++ types of values: the type code of each, and how a value is read as one.

#ifndef ZARN_TYPED_VALUE_H
#define ZARN_TYPED_VALUE_H

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "zarn/typed/conversion.h"
#include "zarn/typed/engine.h"
#include "zarn/typed/numbers.h"
#include "zarn/value.h"

namespace zarn_3_3 {

// The type of an option that takes no value.
struct Switch {};

namespace internal {

template <typename T>
inline constexpr bool isText =
    std::is_same_v<T, const char*> || std::is_same_v<T, std::string_view> ||
    std::is_same_v<T, std::string>;

template <typename T>
constexpr bool canBeValue() {
    return std::is_same_v<T, Switch> || std::is_same_v<T, bool> || isNumber<T> || isText<T> ||
           isConverted<T>;
}

// The code under which an option with values of type T is declared.
template <typename T>
constexpr das_variant_type_t typeCode() {
    static_assert(canBeValue<T>(),
                  "no values have this type: an enumeration needs a table zarn::Names<E>, another "
                  "type of your own a zarn::Conversion<T>");
    if constexpr (std::is_same_v<T, Switch>) {
        return vtNull;
    } else if constexpr (std::is_same_v<T, bool>) {
        return vtBool;
    } else if constexpr (isNumber<T>) {
        using P = Plain<T>;
        return std::is_same_v<P, double>      ? vtDouble
               : std::is_same_v<P, int>       ? vtS32
               : std::is_same_v<P, unsigned>  ? vtU32
               : std::is_same_v<P, long long> ? vtS64
                                              : vtU64;
    } else {
        return vtString;
    }
}

template <typename T>
std::optional<T> numberOf(const variant_t& value) {
    switch (value.type()) {
        case vtBool:
        case vtS32:
        case vtS64:
            return numberAs<T>(value.get<long long>());
        case vtU32:
        case vtU64:
            return numberAs<T>(value.get<unsigned long long>());
        case vtDouble:
            return numberAs<T>(value.get<double>());
        default:
            return std::nullopt;
    }
}

// What get says. When it is nothing, and a reason is known, `*reason` receives it.
template <typename T>
std::optional<T> read(const Value& value, std::string* reason) {
    if constexpr (isText<T>) {
        return value.text != nullptr ? std::optional<T>(value.text) : std::nullopt;
    } else if constexpr (isConverted<T>) {
        std::string ignored;
        return value.text != nullptr
                   ? Conversion<T>::read(value.text, reason != nullptr ? *reason : ignored)
                   : std::nullopt;
    } else if constexpr (std::is_same_v<T, bool>) {
        return value.text != nullptr ? numberOf<bool>(value.value) : true;
    } else {
        return numberOf<T>(value.value);
    }
}

// The value as settings of the plain interface take it.
template <typename T>
variant_t plainValue(const T& value) {
    if constexpr (std::is_same_v<T, std::string_view>) {
        return variant_t(std::string(value));
    } else if constexpr (isNamed<T>) {
        // A value outside of its table has no name, and an empty text would be no setting at all:
        // this is one, which the item refuses.
        const std::string name = Conversion<T>::write(value);
        return variant_t(name.empty() ? std::string("?") : name);
    } else if constexpr (isConverted<T>) {
        return variant_t(std::string(Conversion<T>::write(value)));
    } else if constexpr (isNumber<T>) {
        return plainNumber(value);
    } else {
        return variant_t(value);
    }
}

}  // namespace internal

// The value as a T, when nothing is lost by it.
//
// bool, float, double and integers of every width: a number of whatever type, if T holds exactly
// that number; a float holds what lies in its range. 3 reads as a double and 3.0 as an int; 3.5,
// or -1 as an unsigned, do not. A boolean counts as 0 or 1. An occurrence without a value, as of a
// switch, reads as the bool true.
//
// const char*, std::string_view, std::string: the text of a value of whatever type, as it was typed
// (an abbreviated allowed value in full, a default as help shows it). The first two are valid as
// long as `value.text`: until the result is destroyed, or in a handler during the call. Both end
// with a NUL.
//
// What has a Conversion: what that makes of the text.
//
// std::nullopt: not found, or not readable as a T. Texts are not read as numbers.
//
// Throws std::bad_alloc and what a Conversion of your own throws.
template <typename T>
std::optional<T> get(const Value& value) {
    static_assert(!std::is_same_v<T, Switch>, "a switch has no value: ask isGiven, or for a bool");
    static_assert(internal::canBeValue<T>(), "no values have this type");
    return value.status == statusFound ? internal::read<T>(value, nullptr) : std::nullopt;
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_VALUE_H
