#include "text/number_text.h"

#include <array>
#include <charconv>
#include <limits>
#include <type_traits>

#include "text/number_stream.h"

namespace zarn_3_3::internal {
namespace {

// What a hand-written reader made of a text. `unsure` leaves the answer to a stream: the text is
// one of the few on whose treatment the two might differ.
enum class Reading { number, noNumber, unsure };

const char* skipSpace(const char* at, const char* end) {
    while (at != end && isClassicSpace(*at)) {
        ++at;
    }
    return at;
}

const char* skipDigits(const char* at, const char* end) {
    while (at != end && *at >= '0' && *at <= '9') {
        ++at;
    }
    return at;
}

bool isSign(char c) { return c == '+' || c == '-'; }

bool mayFollow(const char* at, const char* end, Trailing trailing) {
    return trailing == Trailing::ignored || skipSpace(at, end) == end;
}

constexpr int decimal = 10;
constexpr int hexadecimal = 16;

struct Integer {
    unsigned long long magnitude = 0;
    bool isNegative = false;
};

// Reading an integer, as formatted extraction does and std::from_chars alone does not: white space
// in front, a plus sign, a minus sign of unsigned numbers, "0x" in front of hexadecimal ones. So
// space and sign are read here, and the magnitude in the widest type. With a base that the compiler
// knows, each digit is cheaper.
template <int base>
bool readInteger(std::string_view text, Trailing trailing, Integer& integer) {
    const char* const end = text.data() + text.size();
    const char* at = skipSpace(text.data(), end);
    integer.isNegative = at != end && *at == '-';
    if (at != end && isSign(*at)) {
        ++at;
    }
    // Also where no digit follows: "0x" is no number, though a "0" stands in it.
    if (base == hexadecimal && end - at >= 2 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X')) {
        at += 2;
    }
    const auto [behind, problem] = std::from_chars(at, end, integer.magnitude, base);
    return problem == std::errc() && mayFollow(behind, end, trailing);
}

// The number of the type. An unsigned type takes a negative number and wraps, as streams do: -1 is
// the largest number, and what is too large without the sign is too large with it. The magnitude of
// the smallest signed number is one more than that of the largest.
template <typename T>
Reading asType(const Integer& integer, T& number) {
    using Limits = std::numeric_limits<T>;
    const auto largest = static_cast<unsigned long long>(Limits::max());
    if (integer.magnitude > largest + (std::is_signed_v<T> && integer.isNegative ? 1 : 0)) {
        return Reading::noNumber;
    }
    number = static_cast<T>(integer.isNegative ? 0 - integer.magnitude : integer.magnitude);
    return Reading::number;
}

// The end of the longest text from `at` that has the form of a decimal floating-point number, or
// null when it breaks off in the middle of one: "1e" is no number for a stream, and 1 for
// std::from_chars, which would also read "inf" and "nan".
const char* endOfDouble(const char* at, const char* end) {
    const char* const digits = at;
    at = skipDigits(at, end);
    bool hasDigits = at != digits;
    if (at != end && *at == '.') {
        const char* const fraction = ++at;
        at = skipDigits(at, end);
        hasDigits = hasDigits || at != fraction;
    }
    if (!hasDigits || at == end || (*at != 'e' && *at != 'E')) {
        return hasDigits ? at : nullptr;
    }
    ++at;
    if (at != end && isSign(*at)) {
        ++at;
    }
    const char* const exponent = at;
    at = skipDigits(at, end);
    return at != exponent ? at : nullptr;
}

Reading readDouble(std::string_view text, Trailing trailing, double& number) {
    const char* const end = text.data() + text.size();
    const char* at = skipSpace(text.data(), end);
    // The sign stands apart, since std::from_chars takes no plus.
    const bool isNegative = at != end && *at == '-';
    if (at != end && isSign(*at)) {
        ++at;
    }
    const char* const behind = endOfDouble(at, end);
    if (behind == nullptr || !mayFollow(behind, end, trailing)) {
        return Reading::noNumber;
    }
    double magnitude = 0;
    const auto [stop, problem] = std::from_chars(at, behind, magnitude);
    if (problem != std::errc() || stop != behind) {
        return Reading::unsure;  // too large, or too small, where streams make distinctions
    }
    number = isNegative ? -magnitude : magnitude;
    return Reading::number;
}

template <typename T>
Reading readByHand(std::string_view text, Trailing trailing, T& number) {
    if constexpr (std::is_same_v<T, double>) {
        return readDouble(text, trailing, number);
    } else {
        Integer integer;
        return readInteger<decimal>(text, trailing, integer) ? asType(integer, number)
                                                             : Reading::noNumber;
    }
}

// A boolean is a number for a stream: "01" and "+1" are true, "2" is none.
template <>
Reading readByHand(std::string_view text, Trailing trailing, bool& number) {
    int digit = 0;
    const Reading reading = readByHand(text, trailing, digit);
    number = digit == 1;
    return reading == Reading::number && digit != 0 && digit != 1 ? Reading::noNumber : reading;
}

template <typename T>
std::optional<T> answer(Reading reading, T number) {
    return reading == Reading::number ? std::optional<T>(number) : std::nullopt;
}

}  // namespace

template <typename T>
std::optional<T> numberFromText(std::string_view text, Trailing trailing, TextLocale locale) {
    if (locale == TextLocale::classic) {
        T number{};
        const Reading reading = readByHand(text, trailing, number);
        if (reading != Reading::unsure) {
            return answer(reading, number);
        }
    }
    return numberFromStream<T>(text, trailing, false);
}

bool isHexadecimal(std::string_view text) {
    // "0x" alone passes here, and fails where it is read.
    const auto areDigits = [&text](std::size_t from, std::size_t to) {
        return text.find_first_not_of("1234567890ABCDEFabcdef", from) >= to;
    };
    // An empty text has no last character and ends here with the standard out-of-range error.
    const std::string_view last = text.substr(text.size() - 1);
    const std::string_view first = text.substr(0, 2);
    return ((first == "0x" || first == "0X") && areDigits(2, text.size())) ||
           ((last == "h" || last == "H") && areDigits(0, text.size() - 1));
}

std::optional<unsigned long long> hexadecimalFromText(std::string_view text, TextLocale locale) {
    if (locale == TextLocale::classic) {
        Integer integer;
        unsigned long long number = 0;
        // What follows the digits is the "h" of "1fh".
        const bool isRead = readInteger<hexadecimal>(text, Trailing::ignored, integer);
        const Reading reading = isRead ? asType(integer, number) : Reading::noNumber;
        return answer(reading, number);
    }
    return numberFromStream<unsigned long long>(text, Trailing::ignored, true);
}

template <typename T>
std::string textFromNumber(T number) {
    if (globalTextLocale() != TextLocale::classic) {
        return textFromStream(number);
    }
    // Room for any of them: twenty digits and a sign, or six digits with an exponent.
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    if constexpr (std::is_same_v<T, double>) {
        constexpr int streamPrecision = 6;
        return {text.data(),
                std::to_chars(text.data(), end, number, std::chars_format::general, streamPrecision)
                    .ptr};
    } else {
        return {text.data(), std::to_chars(text.data(), end, number).ptr};
    }
}

template std::optional<bool> numberFromText(std::string_view, Trailing, TextLocale);
template std::optional<int> numberFromText(std::string_view, Trailing, TextLocale);
template std::optional<unsigned> numberFromText(std::string_view, Trailing, TextLocale);
template std::optional<long long> numberFromText(std::string_view, Trailing, TextLocale);
template std::optional<unsigned long long> numberFromText(std::string_view, Trailing, TextLocale);
template std::optional<double> numberFromText(std::string_view, Trailing, TextLocale);

template std::string textFromNumber(long long);
template std::string textFromNumber(unsigned long long);
template std::string textFromNumber(double);

}  // namespace zarn_3_3::internal
