#include "text/utf8.h"

namespace zarn_3_3::internal {
namespace {

std::size_t lengthBehind(unsigned lead) {
    if (lead < 0x80) {
        return 1;
    }
    // Up to 0xBF bytes go on with a character; 0xC0 and 0xC1 would begin ASCII in two bytes, and
    // above 0xF4 Unicode has ended.
    if (lead < 0xC2 || lead > 0xF4) {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// Some first bytes leave less room to the second: what is below has a shorter form, what is above
// is a surrogate, or no character.
bool canFollow(unsigned lead, unsigned second) {
    const unsigned least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned greatest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return least <= second && second <= greatest;
}

}  // namespace

std::size_t characterLength(std::string_view text) {
    // Behind the end a NUL is read, which goes on with no character: one that is cut off needs no
    // test of its own.
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned lead = byte(0);
    const std::size_t length = text.empty() ? 0 : lengthBehind(lead);
    if (length > 1 && !canFollow(lead, byte(1))) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) {
            return 0;
        }
    }
    return length;
}

}  // namespace zarn_3_3::internal
