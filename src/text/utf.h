// Text in UTF-8.

#ifndef ZARN_TEXT_UTF_H
#define ZARN_TEXT_UTF_H

#include <cstddef>
#include <string_view>

namespace TROV_2_18 {

// The UTF-8 form of one code point.
struct Utf8Character {
    constexpr Utf8Character(std::size_t size, char first, char second = 0, char third = 0)
        : bytes{first, second, third}, length(size) {}

    char bytes[3];
    std::size_t length;

    constexpr std::string_view view() const { return {bytes, length}; }
};

// `codePoint` is at most U+FFFF: the dashes of option names need no more.
constexpr Utf8Character utf32_to_utf8(char32_t codePoint) {
    const auto leading = [codePoint](char32_t mark, int shift) {
        return static_cast<char>(mark | (codePoint >> shift));
    };
    const auto trailing = [codePoint](int shift) {
        return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
    };
    if (codePoint < 0x80) {
        return {1, leading(0, 0)};
    }
    if (codePoint < 0x800) {
        return {2, leading(0xC0, 6), trailing(0)};
    }
    return {3, leading(0xE0, 12), trailing(6), trailing(0)};
}

}  // namespace TROV_2_18

#endif  // ZARN_TEXT_UTF_H
