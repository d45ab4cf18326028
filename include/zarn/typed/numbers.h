// Which numbers a type holds.

#ifndef ZARN_TYPED_NUMBERS_H
#define ZARN_TYPED_NUMBERS_H

#include <limits>
#include <optional>
#include <type_traits>

#include "zarn/value.h"

namespace zarn_3_3::internal {

// Every built-in width; a char is a character and no number.
template <typename T>
inline constexpr bool isNumber =
    std::is_arithmetic_v<T> && !std::is_same_v<T, bool> && !std::is_same_v<T, char> &&
    !std::is_same_v<T, wchar_t> && !std::is_same_v<T, char16_t> && !std::is_same_v<T, char32_t> &&
    !std::is_same_v<T, long double>;

// The type of its values in the plain interface.
template <typename T>
using Plain = std::conditional_t<
    std::is_floating_point_v<T>,
    double,
    std::conditional_t<sizeof(T) <= sizeof(int),
                       std::conditional_t<std::is_signed_v<T>, int, unsigned>,
                       std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>>>;

template <typename T>
constexpr bool isNegative(T number) {
    if constexpr (std::is_signed_v<T>) {
        return number < 0;
    }
    return false;
}

// Whether `number` becomes the same number as a To; as a float it need not be exact.
template <typename To, typename From>
constexpr bool isKept(From number) {
    using limits = std::numeric_limits<To>;
    if constexpr (std::is_same_v<To, From>) {
        return true;  // NaN too
    } else if constexpr (std::is_same_v<To, float>) {
        const double copy = static_cast<double>(number);
        return !(copy > static_cast<double>(limits::max())) &&
               !(copy < static_cast<double>(limits::lowest()));
    } else if constexpr (std::is_same_v<From, float>) {
        return isKept<To>(static_cast<double>(number));
    } else if constexpr (std::is_same_v<From, double>) {
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
variant_t plainNumber(T number) {
    return variant_t(static_cast<Plain<T>>(number));
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TYPED_NUMBERS_H
