// The C++ types of values: the type code of each, and how a stored value is read as one.

#ifndef ZARN_TYPED_VALUE_H
#define ZARN_TYPED_VALUE_H

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "zarn/value.h"

namespace zarn_3_3 {

// The type of an option that takes no value.
struct Switch {};

namespace internal {

template <das_variant_type_t code>
using Code = std::integral_constant<das_variant_type_t, code>;

// The code under which an option with values of type T is declared.
template <typename T>
struct TypeCode {
    static_assert(!std::is_same_v<T, T>,
                  "values are bool, int, unsigned, long, unsigned long, long long, "
                  "unsigned long long, double, const char*, std::string_view or std::string");
};

// clang-format off
template <> struct TypeCode<Switch> : Code<vtNull> {};
template <> struct TypeCode<bool> : Code<vtBool> {};
template <> struct TypeCode<int> : Code<vtS32> {};
template <> struct TypeCode<unsigned> : Code<vtU32> {};
template <> struct TypeCode<long> : Code<vtS64> {};
template <> struct TypeCode<unsigned long> : Code<vtU64> {};
template <> struct TypeCode<long long> : Code<vtS64> {};
template <> struct TypeCode<unsigned long long> : Code<vtU64> {};
template <> struct TypeCode<double> : Code<vtDouble> {};
template <> struct TypeCode<const char*> : Code<vtString> {};
template <> struct TypeCode<std::string_view> : Code<vtString> {};
template <> struct TypeCode<std::string> : Code<vtString> {};
// clang-format on

template <typename T>
constexpr bool isNegative(T number) {
    if constexpr (std::is_signed_v<T>) {
        return number < 0;
    }
    return false;
}

// Whether `number` becomes the same number as a To.
template <typename To, typename From>
constexpr bool isKept(From number) {
    if constexpr (std::is_same_v<To, From>) {
        return true;  // NaN too
    } else if constexpr (std::is_same_v<From, double>) {
        using limits = std::numeric_limits<To>;
        // The greatest To need not be a double; one more is a power of two.
        constexpr double end = 2.0 * static_cast<double>(To{1} << (limits::digits - 1));
        return number >= static_cast<double>(limits::min()) && number < end &&
               static_cast<double>(static_cast<To>(number)) == number;
    } else if constexpr (std::is_same_v<To, double>) {
        const double copy = static_cast<double>(number);
        return isKept<From>(copy) && static_cast<From>(copy) == number;
    } else {
        const To copy = static_cast<To>(number);
        return static_cast<From>(copy) == number && isNegative(copy) == isNegative(number);
    }
}

template <typename To, typename From>
std::optional<To> numberAs(From number) {
    return isKept<To>(number) ? std::optional<To>(static_cast<To>(number)) : std::nullopt;
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

}  // namespace internal

// The value as a T, when nothing is lost by it.
//
// bool, int, unsigned, long, unsigned long, long long, unsigned long long, double: a number of
// whatever type, if T holds exactly that number. 3 reads as a double and 3.0 as an int; 3.5, or -1
// as an unsigned, do not. A boolean counts as 0 or 1. An occurrence without a value, as of a
// switch, reads as the bool true.
//
// const char*, std::string_view, std::string: the text of a value of whatever type, as it was typed
// (an abbreviated allowed value in full, a default as help shows it). The first two are valid as
// long as `value.text`: until the result is destroyed, or in a handler during the call. Both end
// with a NUL.
//
// std::nullopt: not found, or not readable as a T. Texts are not read as numbers.
//
// Throws std::bad_alloc for std::string, and nothing else.
template <typename T>
std::optional<T> get(const Value& value) {
    static_assert(!std::is_same_v<T, Switch>, "a switch has no value: ask isGiven, or for a bool");
    if (value.status != statusFound) {
        return std::nullopt;
    }
    if constexpr (internal::TypeCode<T>::value == vtString) {
        return value.text != nullptr ? std::optional<T>(value.text) : std::nullopt;
    } else if constexpr (std::is_same_v<T, bool>) {
        return value.text != nullptr ? internal::numberOf<bool>(value.value) : true;
    } else {
        return internal::numberOf<T>(value.value);
    }
}

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_VALUE_H
