#include "help/columns.h"

#include <algorithm>
#include <iterator>

#include "text/utf8.h"

namespace zarn_3_3::internal {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// East Asian scripts, full-width forms and pictures: what terminals agree on, for alignment.
constexpr Range wide[] = {
    {0x1100,  0x115F },
    {0x2E80,  0x303E },
    {0x3041,  0xA4CF },
    {0xA960,  0xA97F },
    {0xAC00,  0xD7A3 },
    {0xF900,  0xFAFF },
    {0xFE30,  0xFE6F },
    {0xFF01,  0xFF60 },
    {0xFFE0,  0xFFE6 },
    {0x17000, 0x1B2FF},
    {0x1F300, 0x1F53D},
    {0x1F5FB, 0x1F64F},
    {0x1F680, 0x1F6FC},
    {0x1F90C, 0x1FAFF},
    {0x20000, 0x3FFFD},
};

// Marks on the character before, and what only directs the others.
constexpr Range combining[] = {
    {0x0300,  0x036F },
    {0x0483,  0x0489 },
    {0x0591,  0x05BD },
    {0x1160,  0x11FF },
    {0x200B,  0x200F },
    {0xFE00,  0xFE0F },
    {0xE0000, 0xE01EF},
};

template <std::size_t count>
bool isIn(const Range (&ranges)[count], char32_t codePoint) {
    // The ranges ascend: only the first that does not end before the character can hold it.
    const Range* const found = std::lower_bound(
        std::begin(ranges), std::end(ranges), codePoint, [](const Range& range, char32_t value) {
            return range.last < value;
        });
    return found != std::end(ranges) && found->first <= codePoint;
}

// Takes the character in front out of `text`: its code point, or 0 for a byte that is no UTF-8.
char32_t takeCharacter(std::string_view& text) {
    const std::size_t length = characterLength(text);
    const auto lead = static_cast<unsigned char>(text.front());
    // As many ones as there are bytes stand in front, then a zero, then the bits that count.
    char32_t codePoint = length < 2 ? lead & 0x7FU : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        codePoint = codePoint << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    text.remove_prefix(length == 0 ? 1 : length);
    return length == 0 ? 0 : codePoint;
}

// The length of the switch of emphasis in front of `text`; 0 when there is none.
std::size_t emphasisLength(std::string_view text) {
    if (text.substr(0, 2) != "\x1b[") {
        return 0;
    }
    // Other sequences than those that end in "m" move the cursor, and are left as they are.
    const std::size_t end = text.find_first_not_of("0123456789;", 2);
    return end != std::string_view::npos && text[end] == 'm' ? end + 1 : 0;
}

}  // namespace

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        if (const std::size_t length = emphasisLength(text)) {
            text.remove_prefix(length);
            continue;
        }
        const char32_t codePoint = takeCharacter(text);
        if (!isIn(combining, codePoint)) {
            columns += isIn(wide, codePoint) ? 2 : 1;
        }
    }
    return columns;
}

std::string withoutEmphasis(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t length = emphasisLength(text);
        // From the second byte on: an escape in front may switch no emphasis, and is text then.
        const std::size_t end = std::min(text.find('\x1b', 1), text.size());
        plain.append(text.substr(length, end - length));
        text.remove_prefix(end);
    }
    return plain;
}

}  // namespace zarn_3_3::internal
