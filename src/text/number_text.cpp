#include "text/number_text.h"

#include <array>
#include <charconv>
#include <limits>
#include <new>
#include <sstream>
#include <type_traits>

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

// Gives the magnitude its sign. An unsigned type takes a negative number and wraps, as streams do:
// -1 is the largest number, and what is too large without the sign is too large with it. The
// magnitude of the smallest signed number is one more than that of the largest.
template <typename T>
bool applySign(unsigned long long magnitude, bool isNegative, T& number) {
    using Limits = std::numeric_limits<T>;
    const auto largest = static_cast<unsigned long long>(Limits::max());
    if (magnitude > largest + (std::is_signed_v<T> && isNegative ? 1 : 0)) {
        return false;
    }
    number = static_cast<T>(isNegative ? 0 - magnitude : magnitude);
    return true;
}

// Reading an integer, as formatted extraction does and std::from_chars alone does not: white space
// in front, a plus sign, a minus sign of unsigned numbers, "0x" in front of hexadecimal ones. So
// space and sign are read here, and the magnitude in the widest type.
template <typename T>
Reading readInteger(std::string_view text, Trailing trailing, int base, T& number) {
    const char* const end = text.data() + text.size();
    const char* at = skipSpace(text.data(), end);
    const bool isNegative = at != end && *at == '-';
    if (at != end && isSign(*at)) {
        ++at;
    }
    // Also where no digit follows: "0x" is no number, though a "0" stands in it.
    if (base == 16 && end - at >= 2 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X')) {
        at += 2;
    }
    unsigned long long magnitude = 0;
    const auto [behind, problem] = std::from_chars(at, end, magnitude, base);
    if (problem != std::errc() || !mayFollow(behind, end, trailing)) {
        return Reading::noNumber;
    }
    return applySign(magnitude, isNegative, number) ? Reading::number : Reading::noNumber;
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
    } else if constexpr (std::is_same_v<T, bool>) {
        // A boolean is a number for a stream: "01" and "+1" are true, "2" is none.
        int digit = 0;
        const Reading reading = readInteger(text, trailing, 10, digit);
        number = digit == 1;
        return reading == Reading::number && digit != 0 && digit != 1 ? Reading::noNumber : reading;
    } else {
        return readInteger(text, trailing, 10, number);
    }
}

// A stream keeps a failed allocation to itself.
void throwIfOutOfMemory(const std::ios& stream) {
    if (stream.bad()) {
        throw std::bad_alloc();
    }
}

// A stream over one text. What does not depend on the type of the number stands apart from what
// does, which would otherwise be there six times.
class NumberStream {
public:
    NumberStream(std::string_view text, bool isHexadecimal);
    ~NumberStream();

    template <typename T>
    bool read(T& number) {
        stream_ >> number;
        return isRead();
    }

    // Whether nothing but white space follows.
    bool isAtEnd();

private:
    bool isRead() const;

    std::istringstream stream_;
};

NumberStream::NumberStream(std::string_view text, bool isHexadecimal) : stream_(std::string(text)) {
    if (isHexadecimal) {
        stream_ >> std::hex;
    }
}

NumberStream::~NumberStream() = default;

bool NumberStream::isRead() const {
    throwIfOutOfMemory(stream_);
    return !stream_.fail();
}

bool NumberStream::isAtEnd() {
    char following = 0;
    const bool isThere = static_cast<bool>(stream_ >> following);
    throwIfOutOfMemory(stream_);
    return !isThere;
}

template <typename T>
std::optional<T> answer(Reading reading, T number) {
    return reading == Reading::number ? std::optional<T>(number) : std::nullopt;
}

}  // namespace

template <typename T>
std::optional<T> numberFromStream(std::string_view text, Trailing trailing, bool hexadecimal) {
    NumberStream stream(text, hexadecimal);
    T number{};
    const bool isNumber =
        stream.read(number) && (trailing == Trailing::ignored || stream.isAtEnd());
    return isNumber ? std::optional<T>(number) : std::nullopt;
}

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
        unsigned long long number = 0;
        const Reading reading = readInteger(text, Trailing::ignored, 16, number);
        return answer(reading, number);
    }
    return numberFromStream<unsigned long long>(text, Trailing::ignored, true);
}

template <typename T>
std::string textFromStream(T number) {
    std::ostringstream stream;
    stream << number;
    throwIfOutOfMemory(stream);
    return stream.str();
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

template std::string textFromNumber(int);
template std::string textFromNumber(unsigned);
template std::string textFromNumber(long long);
template std::string textFromNumber(unsigned long long);
template std::string textFromNumber(double);

}  // namespace zarn_3_3::internal
