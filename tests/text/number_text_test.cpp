#include "text/number_text.h"

#include <gtest/gtest.h>

#include <iterator>
#include <limits>
#include <random>
#include <sstream>
#include <vector>

#include "support/grouping_locale.h"

namespace zarn_3_3::internal {
namespace {

// Limits and oddities, and many texts that are nearly numbers.
std::vector<std::string> texts() {
    std::istringstream limits(
        " 2147483647 2147483648 -2147483648 -2147483649 4294967295 4294967296 -4294967295 "
        "-4294967296 9223372036854775807 9223372036854775808 -9223372036854775808 "
        "-9223372036854775809 18446744073709551615 18446744073709551616 -18446744073709551615 "
        "-18446744073709551616 1e-400 -1e400 1e308 2e308 4.9e-324 2e-324 1e-310 nan inf");
    std::vector<std::string> all{std::istream_iterator<std::string>(limits), {}};
    all.push_back(std::string(400, '9'));
    all.push_back("0." + std::string(400, '0') + "7");
    all.emplace_back("5\0", 2);
    const std::string pieces = "0129+-.,eExXhFa \t\v\xA0np_\r345678000xxee+-";
    std::mt19937 dice(20240229);
    for (int i = 0; i < 40000; ++i) {
        std::string& text = all.emplace_back();
        for (auto left = dice() % 9; left > 0; --left) {
            text += pieces[dice() % pieces.size()];
        }
    }
    return all;
}

// To the bit: 0 and -0 differ, NaN equals itself.
template <typename T>
std::string bits(const std::optional<T>& number) {
    return number ? std::string(reinterpret_cast<const char*>(&*number), sizeof(T)) : "none";
}

template <typename T>
struct NumberText : testing::Test {};

using Types = testing::Types<bool, int, unsigned, long long, unsigned long long, double>;
TYPED_TEST_SUITE(NumberText, Types, );  // without the last comma clang warns

TYPED_TEST(NumberText, ReadsAsStreamsDo) {
    using T = TypeParam;
    for (const std::string& text : texts()) {
        for (const Trailing trailing : {Trailing::refused, Trailing::ignored}) {
            ASSERT_EQ(bits(numberFromText<T>(text, trailing, globalTextLocale())),
                      bits(numberFromStream<T>(text, trailing, false)))
                << "'" << text << "'";
        }
        ASSERT_EQ(hexadecimalFromText(text, globalTextLocale()),
                  numberFromStream<unsigned long long>(text, Trailing::ignored, true))
            << "'" << text << "'";
    }
}

TYPED_TEST(NumberText, WritesAsStreamsDo) {
    using T = decltype(TypeParam() + TypeParam());  // there is no text of bool
    using Limits = std::numeric_limits<T>;
    std::vector<T> numbers{Limits::min(), Limits::lowest(), Limits::max(), T{0}};
    for (int i = 1; i < 2000; ++i) {
        numbers.push_back(static_cast<T>(1e9 / i));
    }
    for (const T number : numbers) {
        ASSERT_EQ(textFromNumber(number), textFromStream(number));
    }
}

// Fixed points, so that the comparisons above cannot all be wrong together.
TEST(NumberTextLocale, FollowsTheGlobalLocale) {
    const auto read = [](const char* text) {
        return numberFromText<int>(text, Trailing::refused, globalTextLocale());
    };
    EXPECT_EQ(read("1.000"), std::nullopt);
    const GroupingLocale german;
    EXPECT_EQ(read("1.000"), 1000);
    EXPECT_EQ(read("10.00"), std::nullopt);
    EXPECT_EQ(read("5\xA0"), 5);
    EXPECT_EQ(read("5\xA0x"), std::nullopt);
    EXPECT_EQ(numberFromText<double>("2,5x", Trailing::ignored, TextLocale::other), 2.5);
    EXPECT_EQ(hexadecimalFromText("\xA0"
                                  "0x1Fx",
                                  TextLocale::other),
              31U);
    EXPECT_EQ(textFromNumber(1234567), "1.234.567");
    EXPECT_EQ(textFromNumber(2.5), "2,5");
}

}  // namespace
}  // namespace zarn_3_3::internal
