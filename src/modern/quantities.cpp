// Numbers with a unit: durations and sizes.

#include "zarn/typed/quantities.h"

#include <cstring>
#include <iterator>

#include "modern/messages.h"

namespace zarn_3_3::internal {
namespace {

// A number without sign as it is typed: digits, perhaps with a point and up to nine more.
struct Decimal {
    std::uint64_t whole = 0;
    std::uint64_t fraction = 0;  // of so many
    std::uint64_t scale = 1;
};

struct Unit {
    const char* name;
    std::uint64_t size;
};

constexpr std::uint64_t most64 = std::numeric_limits<std::uint64_t>::max();

// In nanoseconds; of two names of a size the first is written.
constexpr Unit timeUnits[] = {
    {"ns",  1             },
    {"us",  1000          },
    {"ms",  1000000       },
    {"s",   1000000000    },
    {"m",   60000000000   },
    {"min", 60000000000   },
    {"h",   3600000000000 },
    {"d",   86400000000000},
};

constexpr char byteUnits[] = "KMGTPE";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Takes the digits off the front of `text`. False when they are more than fit.
bool takeDigits(const char*& text, std::uint64_t& number) {
    for (; isDigit(*text); ++text) {
        const auto digit = static_cast<std::uint64_t>(*text - '0');
        // Before it happens: behind it nobody can tell.
        if (number > (most64 - digit) / 10) {
            return false;
        }
        number = number * 10 + digit;
    }
    return true;
}

// Takes the number off the front of `text`. False when there is none, or it does not fit.
bool takeDecimal(const char*& text, Decimal& number) {
    if (!isDigit(*text) || !takeDigits(text, number.whole)) {
        return false;
    }
    // A point without digits behind it is a slip, and not read.
    if (*text != '.') {
        return true;
    }
    constexpr int mostPlaces = 9;  // so that the product of two such fractions fits
    const char* const first = ++text;
    for (; isDigit(*text) && text - first < mostPlaces; ++text) {
        number.fraction = number.fraction * 10 + static_cast<std::uint64_t>(*text - '0');
        number.scale *= 10;
    }
    return text != first;
}

enum class Product { exact, notWhole, tooMuch };

Product multiply(const Decimal& number, std::uint64_t factor, std::uint64_t& product) {
    // In two parts, so that nothing overflows on the way to a product that fits.
    const std::uint64_t part = number.fraction * (factor % number.scale);
    const std::uint64_t rest = number.fraction * (factor / number.scale) + part / number.scale;
    // First whether it fits: of a number that is too big nobody wants to hear that it is not whole.
    if (number.whole > (most64 - rest) / factor) {
        return Product::tooMuch;
    }
    product = number.whole * factor + rest;
    return part % number.scale == 0 ? Product::exact : Product::notWhole;
}

// The factor that "K", "KiB" or "KB" stands for; 0 for no unit.
std::uint64_t byteUnit(const char* name) {
    if (*name == '\0' || std::strcmp(name, "B") == 0) {
        return 1;
    }
    // Upper case only: "m" is a thousandth and "b" a bit to some, and a wrong guess is a factor of
    // a million.
    const char* const letter = std::strchr(byteUnits, *name);
    const bool isBinary = name[1] == '\0' || std::strcmp(name + 1, "iB") == 0;
    if (letter == nullptr || (!isBinary && std::strcmp(name + 1, "B") != 0)) {
        return 0;
    }
    std::uint64_t factor = 1;
    for (const char* each = byteUnits; each <= letter; ++each) {
        factor *= isBinary ? 1024 : 1000;
    }
    return factor;
}

// Hours counted in seconds, or seconds counted in hours.
Product convert(const Decimal& number,
                std::uint64_t unit,
                std::uint64_t tick,
                std::uint64_t& ticks) {
    if (unit % tick == 0) {
        return multiply(number, unit / tick, ticks);
    }
    // "36h" in days: whether it is whole is known of the product alone.
    std::uint64_t nanoseconds = 0;
    const Product product = multiply(number, unit, nanoseconds);
    ticks = nanoseconds / tick;
    return product == Product::exact && nanoseconds % tick != 0 ? Product::notWhole : product;
}

}  // namespace

std::optional<std::uint64_t> readTicks(const char* text,
                                       std::uint64_t tick,
                                       std::uint64_t most,
                                       std::string& reason) {
    Decimal number;
    const bool isNumber = takeDecimal(text, number);
    const Unit* unit = std::begin(timeUnits);
    // No unit is assumed for a bare number: seconds for one tool are milliseconds for the next.
    while (unit != std::end(timeUnits) && std::strcmp(unit->name, text) != 0) {
        ++unit;
    }
    if (!isNumber || unit == std::end(timeUnits)) {
        reason = messages::noDuration;
        return std::nullopt;
    }
    std::uint64_t ticks = 0;
    const Product product = convert(number, unit->size, tick, ticks);
    if (product == Product::notWhole) {
        reason = messages::wholeNumberOf(unitOf(tick));
        return std::nullopt;
    }
    if (product == Product::tooMuch || ticks > most) {
        reason = messages::numberAtMost(std::to_string(most) + unitOf(tick));
        return std::nullopt;
    }
    return ticks;
}

const char* unitOf(std::uint64_t tick) noexcept {
    for (const Unit& unit : timeUnits) {
        if (unit.size == tick) {
            return unit.name;
        }
    }
    return "";
}

std::optional<std::uint64_t> readBytes(const char* text, std::string& reason) {
    Decimal number;
    const bool isNumber = takeDecimal(text, number);
    const std::uint64_t unit = byteUnit(text);
    if (!isNumber || unit == 0) {
        reason = messages::noBytes;
        return std::nullopt;
    }
    std::uint64_t count = 0;
    switch (multiply(number, unit, count)) {
        case Product::notWhole:
            reason = messages::wholeNumberOf("bytes");
            return std::nullopt;
        case Product::tooMuch:
            reason = messages::numberAtMost(std::to_string(most64));
            return std::nullopt;
        default:
            return count;
    }
}

std::string writeBytes(std::uint64_t count) {
    std::size_t units = 0;
    // Never a fraction, so that what is written reads as the same number.
    for (; count != 0 && count % 1024 == 0; count /= 1024) {
        ++units;
    }
    std::string text = std::to_string(count);
    if (units > 0) {
        text += byteUnits[units - 1];
    }
    return text;
}

}  // namespace zarn_3_3::internal
