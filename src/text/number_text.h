// Numbers from texts and back, as streams of the global locale read and write them.

#ifndef ZARN_TEXT_NUMBER_TEXT_H
#define ZARN_TEXT_NUMBER_TEXT_H

#include <optional>
#include <string>
#include <string_view>

#include "text/text_locale.h"

namespace zarn_3_3::internal {

enum class Trailing {
    refused,  // only white space may follow the number
    ignored,
};

// The number in `text`, in the default form of formatted extraction: leading white space skipped,
// decimal, booleans as 0 and 1. None when there is no number, when it does not fit, or when
// something but white space follows it and that is refused.
//
// T is bool, int, unsigned, long long, unsigned long long or double. Throws std::bad_alloc.
template <typename T>
std::optional<T> numberFromText(std::string_view text, Trailing trailing, TextLocale locale);

// Whether a text, which is not empty, has one of the marks of hexadecimal numbers: "0x1F", "1fh".
// One without is decimal, also where all its digits could be hexadecimal ones.
bool isHexadecimal(std::string_view text);

// The same read as hexadecimal, with or without "0x" in front; what follows is ignored.
std::optional<unsigned long long> hexadecimalFromText(std::string_view text, TextLocale locale);

// The text of formatted insertion. T is long long, unsigned long long or double.
// Throws std::bad_alloc.
template <typename T>
std::string textFromNumber(T number);

// Whether it begins as a number below zero: "-5", "-.5".
inline bool looksNegative(std::string_view text) {
    const std::size_t first = text.size() > 1 && text[1] == '.' ? 2 : 1;
    return text.size() > first && text[0] == '-' && text[first] >= '0' && text[first] <= '9';
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_NUMBER_TEXT_H
