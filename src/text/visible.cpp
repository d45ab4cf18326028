#include "text/visible.h"

namespace zarn_3_3::internal {
namespace {

void appendEscaped(std::string& text, unsigned char byte) {
    constexpr char digits[] = "0123456789abcdef";
    text.append("\\x");
    text += digits[byte / 16];
    text += digits[byte % 16];
}

}  // namespace

// Terminals obey control characters from U+0080 on like those of ASCII. Everything else is text of
// some kind, and stays.
std::string visible(const std::string& text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(text[i + 1]);        // the NUL at the end
        const bool isWide = byte == 0xc2 && next >= 0x80 && next < 0xa0;  // U+0080 to U+009F
        if (isWide || byte < 0x20 || byte == 0x7f) {
            appendEscaped(shown, byte);
            if (isWide) {
                appendEscaped(shown, next);
                ++i;
            }
        } else {
            shown += text[i];
        }
    }
    return shown;
}

}  // namespace zarn_3_3::internal
