#include "options/number_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iomanip>
#include <limits>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "support/grouping_locale.h"

namespace zarn_3_3::internal {
namespace {

// The definition: what formatted extraction and insertion do.
template <typename T>
std::optional<T> extracted(const std::string& text, Trailing trailing, int base) {
    std::istringstream stream(text);
    stream >> std::setbase(base);
    T number{};
    char following = 0;
    if (!(stream >> number) || (trailing == Trailing::refused && stream >> following)) {
        return std::nullopt;
    }
    return number;
}

template <typename T>
std::string inserted(T number) {
    std::ostringstream stream;
    stream << number;
    return stream.str();
}

// To the bit: 0 and -0 differ.
template <typename T>
bool isSame(const std::optional<T>& a, const std::optional<T>& b) {
    return a.has_value() == b.has_value() &&
           (!a.has_value() || std::memcmp(&*a, &*b, sizeof(T)) == 0);
}

std::vector<std::string> splitAtBars(const char* list) {
    std::istringstream stream(list);
    std::vector<std::string> texts;
    for (std::string text; std::getline(stream, text, '|');) {
        texts.push_back(text);
    }
    return texts;
}

std::vector<std::string> specialTexts() {
    std::vector<std::string> texts = splitAtBars(
        "| |+|-|+5|+-5| 5 |\t5\v|5\n|5 x|5x|05|-0|-1|2|true|2147483647|2147483648|-2147483648|"
        "-2147483649|4294967295|4294967296|-4294967295|-4294967296|9223372036854775807|"
        "9223372036854775808|-9223372036854775808|-9223372036854775809|18446744073709551615|"
        "18446744073709551616|-18446744073709551615|-18446744073709551616|1e-400|1e400|-1e400|"
        "1e308|2e308|4.9e-324|2e-324|1e-310|nan|inf|0x1p3|0x|0X|-0x|0xG|0x1F|0x1G|0x0x1|x1|h|fh|"
        "-1h|0x1h|1Fh|12abc|ffffffffffffffff|0xffffffffffffffff|11112222333344445|.|.5|5.|-.5|"
        "1.5.5|1e|1e+|1e+5|1E5x|1e5e5|e5|1.e2|1,000|10,00|1,5|1.000|10.00|1.000,5|\xA0|5\xA0|"
        "5\xA0x");
    texts.push_back(std::string(400, '9'));
    texts.push_back(std::string(400, '0') + "7");
    texts.push_back("0." + std::string(400, '0') + "7");
    texts.emplace_back("5\0", 2);
    return texts;
}

template <typename T>
class NumberText : public testing::Test {
public:
    static void expectSameAsStreams(const std::vector<std::string>& texts) {
        for (const std::string& text : texts) {
            for (const Trailing trailing : {Trailing::refused, Trailing::ignored}) {
                EXPECT_TRUE(
                    isSame(numberFromText<T>(text, trailing), extracted<T>(text, trailing, 10)))
                    << "'" << text << "'"
                    << (trailing == Trailing::ignored ? ", rest ignored" : "");
            }
            EXPECT_TRUE(isSame(hexadecimalFromText(text),
                               extracted<unsigned long long>(text, Trailing::ignored, 16)))
                << "'" << text << "' as hexadecimal";
        }
    }

    static void expectSameAsInserted(T number) {
        if constexpr (!std::is_same_v<T, bool>) {
            EXPECT_EQ(textFromNumber(number), inserted(number));
        }
    }

    static void expectLimitsSameAsInserted() {
        using Limits = std::numeric_limits<T>;
        for (const T number : {Limits::min(), Limits::lowest(), Limits::max(), T{0}}) {
            expectSameAsInserted(number);
        }
    }
};

using Types = testing::Types<bool, int, unsigned, long long, unsigned long long, double>;
TYPED_TEST_SUITE(NumberText, Types, );  // without the last comma clang warns

// Pieces rather than characters, so that many texts are nearly numbers.
std::vector<std::string> randomTexts(std::size_t count) {
    const auto pieces = splitAtBars(
        "0|1|2|9|00|1|+|-|.|,|e|E|x|X|h|F|a|0x| |\t|\v|\xA0|e-3|e+300|inf|n|p|G|_|\r|-5|12|34|567|"
        "21474836|9223372036854");
    std::mt19937 dice(20240229);
    std::vector<std::string> texts(count);
    for (std::string& text : texts) {
        for (auto left = dice() % 6 + 1; left > 0; --left) {
            text += pieces[dice() % pieces.size()];
        }
    }
    return texts;
}

TYPED_TEST(NumberText, ReadsAsStreamsDo) {
    this->expectSameAsStreams(specialTexts());
    this->expectSameAsStreams(randomTexts(20000));
}

TYPED_TEST(NumberText, ReadsAndWritesAsStreamsOfTheGlobalLocaleDo) {
    const GroupingLocale german;
    this->expectSameAsStreams(specialTexts());
    this->expectSameAsStreams(randomTexts(2000));
    this->expectLimitsSameAsInserted();
}

TYPED_TEST(NumberText, WritesAsStreamsDo) {
    this->expectLimitsSameAsInserted();
    std::mt19937_64 dice(7);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t bits = dice() >> (dice() % 64);
        TypeParam number{};
        if constexpr (std::is_same_v<TypeParam, double>) {
            std::memcpy(&number, &bits, sizeof number);  // NaN and infinities too
        } else {
            number = static_cast<TypeParam>(bits);
        }
        this->expectSameAsInserted(number);
    }
}

// Fixed points, so that the comparisons above cannot all be wrong together.
TEST(NumberTextLocale, FollowsTheGlobalLocale) {
    EXPECT_EQ(numberFromText<int>("1.000", Trailing::refused), std::nullopt);
    const GroupingLocale german;
    EXPECT_EQ(numberFromText<int>("1.000", Trailing::refused), 1000);
    EXPECT_EQ(numberFromText<int>("10.00", Trailing::refused), std::nullopt);
    EXPECT_EQ(numberFromText<int>("5\xA0", Trailing::refused), 5);
    EXPECT_EQ(numberFromText<double>("2,5", Trailing::refused), 2.5);
    EXPECT_EQ(textFromNumber(1234567), "1.234.567");
    EXPECT_EQ(textFromNumber(2.5), "2,5");
}

}  // namespace
}  // namespace zarn_3_3::internal
