// Durations and sizes: a number with a unit.

#ifndef ZARN_TYPED_QUANTITIES_H
#define ZARN_TYPED_QUANTITIES_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

#include "zarn/export.h"
#include "zarn/typed/conversion.h"

namespace zarn_3_3 {

// A number of bytes. Typed as "4096", "64K" or "64KiB" (of 1024 bytes each), "2MB" (of 1000 times
// 1000), "1.5G": K, M, G, T, P and E with "iB" or nothing behind them count in powers of 1024, with
// "B" in powers of 1000.
struct Bytes {
    std::uint64_t count = 0;

    constexpr operator std::uint64_t() const noexcept { return count; }
};

namespace internal {

template <typename T, typename = void>
inline constexpr bool isDuration = false;
template <typename T>
inline constexpr bool isDuration<T, std::void_t<typename T::rep, typename T::period>> = true;

// Which unit the ticks of a duration count: its size in nanoseconds.
template <typename Period>
constexpr std::uint64_t tickOf() {
    constexpr auto nano = std::uint64_t{1000000000};
    static_assert(Period::num > 0 && Period::num <= 86400 && nano % Period::den == 0,
                  "durations are read from nanoseconds up to days");
    return static_cast<std::uint64_t>(Period::num) * (nano / Period::den);
}

// Reads a number with a unit, in ticks of so many nanoseconds; `reason` says why it is none.
ZARN_EXPORT std::optional<std::uint64_t> readTicks(const char* text,
                                                   std::uint64_t tick,
                                                   std::uint64_t most,
                                                   std::string& reason);

// The name of the unit of so many nanoseconds, or an empty text.
ZARN_EXPORT const char* unitOf(std::uint64_t tick) noexcept;

ZARN_EXPORT std::optional<std::uint64_t> readBytes(const char* text, std::string& reason);

// With the greatest unit that is exact: "64K".
ZARN_EXPORT std::string writeBytes(std::uint64_t count);

}  // namespace internal

template <>
struct Conversion<Bytes> {
    static std::optional<Bytes> read(const char* text, std::string& reason) {
        const std::optional<std::uint64_t> count = internal::readBytes(text, reason);
        return count ? std::optional<Bytes>(Bytes{*count}) : std::nullopt;
    }
    static std::string write(Bytes bytes) { return internal::writeBytes(bytes.count); }
};

// std::chrono::duration, without a need for its header. Typed as a number with a unit: ns, us, ms,
// s, m or min, h, d. It is never negative, and exact: "1.5s" is no number of whole seconds.
template <typename T>
struct Conversion<T, std::enable_if_t<internal::isDuration<T>>> {
    static std::optional<T> read(const char* text, std::string& reason) {
        using Count = typename T::rep;
        constexpr std::uint64_t tick = internal::tickOf<typename T::period>();
        constexpr auto all = std::numeric_limits<std::uint64_t>::max();
        if constexpr (std::is_floating_point_v<Count>) {
            const auto exact = internal::readTicks(text, 1, all, reason);
            return exact ? std::optional<T>(static_cast<Count>(static_cast<long double>(*exact) /
                                                               static_cast<long double>(tick)))
                         : std::nullopt;
        } else {
            constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<Count>::max());
            const auto ticks = internal::readTicks(text, tick, most, reason);
            return ticks ? std::optional<T>(static_cast<Count>(*ticks)) : std::nullopt;
        }
    }
    static std::string write(const T& duration) {
        std::string count = std::to_string(duration.count());
        if (std::is_floating_point_v<typename T::rep>) {
            count.erase(count.find_last_not_of('0') + 1);
            count.erase(count.find_last_not_of('.') + 1);
        }
        return count + internal::unitOf(internal::tickOf<typename T::period>());
    }
};

}  // namespace zarn_3_3

#endif  // ZARN_TYPED_QUANTITIES_H
