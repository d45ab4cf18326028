#include "text/cut_argument.h"

#include <gtest/gtest.h>

#include <regex>
#include <stdexcept>
#include <vector>

#include "support/grouping_locale.h"

namespace zarn_3_3 {
namespace {

// "name|value" of an argument, or "name" when no value is attached.
std::string cut(const std::string& argument) {
    std::string_view name = "stale";
    std::string_view value = "untouched";
    const bool hasValue = splitOptionValue(argument, &name, &value, internal::globalTextLocale());
    EXPECT_TRUE(hasValue || value == "untouched");
    return std::string(name) + (hasValue ? "|" + std::string(value) : "");
}

TEST(SplitOptionValue, TakesTheBlanksOfTheGlobalLocale) {
    EXPECT_EQ(cut("--opt \t\v\r\n\f v w"), "opt|v w");
    EXPECT_EQ(cut("--o\xA0v"), "o\xA0v");
    const GroupingLocale locale;
    EXPECT_EQ(cut("--o\xA0 \xA0v\xA0"), "o|v\xA0");
    EXPECT_EQ(cut("--o=\xA0v"), "o|\xA0v");
}

TEST(SplitOptionValue, CutsEveryShortTextAsAPatternDoes) {
    const std::regex pattern("(?:-|\xE2\x80\x94)?(?:-|\xE2\x80\x94)?([^= ]*)(?:=(.*)| +(.*))?");
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < texts.size() && !HasFailure(); ++i) {
        const std::string text = texts[i];
        std::smatch parts;
        ASSERT_TRUE(std::regex_match(text, parts, pattern)) << text;
        const bool hasValue = parts[2].matched || parts[3].matched;
        EXPECT_EQ(cut(text), parts.str(1) + (hasValue ? "|" + parts.str(2) + parts.str(3) : ""));
        for (const char* symbol : {"-", "=", "a", " ", "\xE2", "\x80\x94"}) {
            if (i < 1555) {  // 6^0 + ... + 6^4
                texts.push_back(text + symbol);
            }
        }
    }
}

TEST(GetDashLength, KnowsSixDashes) {
    for (const char last : {'\x91', '\x92', '\x93', '\x94', '\x95', '\x96'}) {
        const bool isDash = last >= '\x92' && last <= '\x95';
        EXPECT_EQ(getDashLength(std::string("x\xE2\x80") + last + "y", 1), isDash ? 3U : 0U);
    }
    EXPECT_EQ(getDashLength("\xE2\x81\x93", 0), 3U);
    EXPECT_EQ(getDashLength("-", 0), 1U);
    EXPECT_THROW(getDashLength("a", 2), std::out_of_range);
}

}  // namespace
}  // namespace zarn_3_3
