#include "text/utf.h"

#include <gtest/gtest.h>

#include <utility>

namespace TROV_2_18 {
namespace {

// Around the places where the length changes.
const std::pair<char32_t, const char*> rows[] = {
    {0x2D,   "-"           },
    {0x40,   "@"           },
    {0x7F,   "\x7F"        },
    {0x80,   "\xC2\x80"    },
    {0x7FF,  "\xDF\xBF"    },
    {0x800,  "\xE0\xA0\x80"},
    {0x2053, "\xE2\x81\x93"},
    {0xFFFF, "\xEF\xBF\xBF"},
};

TEST(Utf8, EncodesCodePointsOfEachLength) {
    for (const auto& [codePoint, text] : rows) {
        EXPECT_EQ(utf32_to_utf8(codePoint).view(), text);
    }
}

}  // namespace
}  // namespace TROV_2_18
