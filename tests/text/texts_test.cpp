// Short texts and odd numbers, beside plain ways; and fixed points, so that both cannot be wrong
// together.

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "log/zarn_log.h"
#include "support/grouping_locale.h"
#include "text/cut_argument.h"
#include "text/number_text.h"
#include "text/paragraph.h"
#include "text/plain_ways.h"
#include "text/utf.h"

namespace zarn_3_3::internal {
namespace {

using namespace testing_support;

TEST(Numbers, AreReadAsStreamsDoAtTheLimits) {
    std::istringstream limits(
        " 2147483647 2147483648 -2147483648 -2147483649 4294967295 4294967296 -4294967295 "
        "-4294967296 9223372036854775807 9223372036854775808 -9223372036854775808 "
        "-9223372036854775809 18446744073709551615 18446744073709551616 -18446744073709551615 "
        "-18446744073709551616 1e-400 -1e400 1e308 2e308 4.9e-324 2e-324 1e-310 nan inf");
    for (std::string text; limits >> text;) {
        checkReading(text);
    }
    checkReading(std::string(400, '9'));
    checkReading("0." + std::string(400, '0') + "7");
    checkReading({"5\0", 2});
}

// Many are nearly numbers.
TEST(Numbers, AreReadAsStreamsDoWhateverTheyAreMadeOf) {
    const std::string pieces = "0129+-.,eExXhFa \t\v\xA0np_\r345678000xxee+-";
    std::mt19937 dice(20240229);
    for (int i = 0; i < 40000; ++i) {
        std::string text;
        for (auto left = dice() % 9; left > 0; --left) {
            text += pieces[dice() % pieces.size()];
        }
        ASSERT_NO_THROW(checkReading(text)) << "'" << text << "'";
    }
}

template <typename Number>
void checkManyAs() {
    using Limits = std::numeric_limits<Number>;
    for (const Number number : {Limits::min(), Limits::lowest(), Limits::max(), Number{0}}) {
        checkWriting(number);
    }
    for (int i = 1; i < 2000; ++i) {
        checkWriting(static_cast<Number>(1e9 / i));
    }
}

TEST(Numbers, AreWrittenAsStreamsDo) {
    checkManyAs<long long>();
    checkManyAs<unsigned long long>();
    checkManyAs<double>();
}

TEST(Numbers, FollowTheGlobalLocale) {
    const auto read = [](const char* text) {
        return numberFromText<int>(text, Trailing::refused, globalTextLocale());
    };
    EXPECT_EQ(read("1.000"), std::nullopt);
    const GroupingLocale german;
    EXPECT_EQ(read("1.000"), 1000);
    EXPECT_EQ(read("5\xA0x"), std::nullopt);
    EXPECT_EQ(numberFromText<double>("2,5x", Trailing::ignored, globalTextLocale()), 2.5);
    EXPECT_EQ(hexadecimalFromText("\xA0"
                                  "0x1Fx",
                                  globalTextLocale()),
              31U);
    EXPECT_EQ(textFromNumber(1234567LL), "1.234.567");
}

TEST(Arguments, AreCutAsPlainLoopsDo) {
    for (const bool isGrouping : {false, true}) {
        std::optional<GroupingLocale> locale;
        isGrouping ? void(locale.emplace()) : void();
        std::vector<std::string> texts{""};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const std::string text = texts[i];
            ASSERT_NO_THROW(checkCuts(text)) << text;
            for (const char* symbol : {"-", "=", "a", " ", "\xE2", "\x80\x94", "\xA0"}) {
                if (i < 400) {  // 7^0 + ... + 7^3
                    texts.push_back(text + symbol);
                }
            }
        }
    }
}

TEST(Arguments, HaveSixDashes) {
    for (const char last : {'\x91', '\x92', '\x93', '\x94', '\x95', '\x96'}) {
        const bool isDash = last >= '\x92' && last <= '\x95';
        EXPECT_EQ(getDashLength(std::string("x\xE2\x80") + last + "y", 1), isDash ? 3U : 0U);
    }
    EXPECT_EQ(getDashLength("\xE2\x81\x93", 0), 3U);
    EXPECT_THROW(getDashLength("a", 2), std::out_of_range);
}

// Around the places where the length changes.
static_assert(TROV_2_18::utf32_to_utf8(0x7F).view() == "\x7F");
static_assert(TROV_2_18::utf32_to_utf8(0x80).view() == "\xC2\x80");
static_assert(TROV_2_18::utf32_to_utf8(0x7FF).view() == "\xDF\xBF");
static_assert(TROV_2_18::utf32_to_utf8(0x800).view() == "\xE0\xA0\x80");
static_assert(TROV_2_18::utf32_to_utf8(0x2053).view() == "\xE2\x81\x93");
static_assert(TROV_2_18::utf32_to_utf8(0xFFFF).view() == "\xEF\xBF\xBF");

TEST(Paragraphs, AreFilledByTheirRules) {
    std::mt19937 dice(7);
    for (int i = 0; i < 20000; ++i) {
        const std::string head(dice() % 12, 'h');
        const std::size_t indent = dice() % 10;
        std::string text;
        for (auto left = dice() % 40; left > 0; --left) {
            text += "aaab \n"[dice() % 6];
        }
        ASSERT_NO_THROW(checkParagraph(text, head, indent, 3 + text.size() % 12)) << text;
    }
}

// Nobody asks for so little: neither the help nor WordWrappedText, whose paragraphs are scenarios.
TEST(Paragraphs, NeedAColumn) {
    EXPECT_THROW(paragraphString("a", "", 0, 2), std::invalid_argument);
    EXPECT_THROW(paragraphString("a", "", 3, 1), std::out_of_range);
}

// Another thread may switch it off in the middle of a line.
TEST(Log, GoesNowhereWhileItIsOff) { EXPECT_FALSE(zarnLog() << "nowhere"); }

}  // namespace
}  // namespace zarn_3_3::internal
