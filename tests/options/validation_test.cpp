#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "options/option_description.h"
#include "support/captured_stream.h"

namespace zarn_3_3 {
namespace {

using Values = std::vector<variant_t>;
using Replacements = std::vector<std::pair<variant_t, variant_t>>;

OptionDescription named(const char* name,
                        das_variant_type_t type,
                        const Values& allowed,
                        const Replacements& deprecated) {
    OptionDescription option;
    option.names = {name, "other"};
    option.type = type;
    for (const variant_t& value : allowed) {
        option.allowValue(value);
    }
    for (const auto& [old, replacement] : deprecated) {
        option.allowDeprecatedValue(old, replacement);
    }
    return option;
}

struct Case {
    const char* label;
    das_variant_type_t type;
    Values allowed;
    Replacements deprecated;
    const char* given;
    const char* text;  // afterwards
    variant_t value;
    const char* error;    // empty: accepted
    const char* warning;  // on the error stream
};

const Values stones{"marble", "market"};
const Replacements oldForNew{
    {"old", "new"}
};
const char* const oldWarning =
    "Warning: 'old' argument is deprecated for the option '-x'. Use the 'new' argument instead.\n";
const char* const ambiguousStone =
    "Ambiguous value for option 'x'. Possible values follows: 'marble', 'market'";

// clang-format off
const Case cases[] = {
    {"NoAllowedValues",        vtString, {},       {},        "any",    "any",    "any",    "", ""},
    {"NotOfItsType",           vtS32,    {},       {},        "a'b",    "a'b",    {},
     "Option 'x' can not parse 'a'b' value, requires a type 'integer' here.", ""},
    {"NotABoolean",            vtBool,   {},       {},        "true",   "true",   {},
     "Option 'x' can not parse 'true' value, requires a type 'undefined' here.", ""},
    {"NotOfItsTypeThoughOpen", vtNull,   {},       {},        "1",      "1",      {},
     "Option 'x' can not parse '1' value, requires a type '' here.", ""},
    {"Abbreviated",            vtString, stones,   {},        "marb",   "marble", "marble", "", ""},
    {"Tied",                   vtString, stones,   {},        "mar",    "mar",    {},       ambiguousStone, ""},
    {"EmptyTextBeginsAll",     vtString, stones,   {},        "",       "",       {},       ambiguousStone, ""},
    {"EmptyTextBeginsTheOne",  vtString, {"one"},  {},        "",       "one",    "one",    "", ""},
    {"CaseCounts",             vtString, stones,   {},        "MARB",   "MARB",   {},
     "Option 'x' does not allow value 'MARB'. Possible values follows: 'marble', 'market'", ""},
    {"LongerThanTheAllowed",   vtString, {"one"},  {},        "ones",   "ones",   {},
     "Option 'x' does not allow value 'ones'. Possible values follows: 'one'", ""},
    {"ExactBeatsLonger",       vtString, {"abc", "ab"}, {},   "ab",     "ab",     "ab",     "", ""},
    {"BeginsTwoOfALine",       vtString, {"ab", "abc"}, {},   "a",      "a",      {},
     "Ambiguous value for option 'x'. Possible values follows: 'ab', 'abc'", ""},
    {"AllowedTwiceIsTied",     vtString, {"one", "one"}, {},  "o",      "o",      {},
     "Ambiguous value for option 'x'. Possible values follows: 'one', 'one'", ""},
    {"NumberByValue",          vtS32,    {1, 2},   {},        "01",     "01",     1,        "", ""},
    {"NumberNotAbbreviated",   vtS32,    {12, 34}, {},        "1",      "1",      {},
     "Option 'x' does not allow value '1'. Possible values follows: '12', '34'", ""},
    {"HexadecimalByValue",     vtU64,    {16ULL},  {},        "10h",    "10h",    16ULL,    "", ""},
    {"AllowedOfAnotherKind",   vtU64,    {16.0},   {},        "0x10",   "0x10",   16ULL,    "", ""},
    {"Deprecated",             vtString, {"new"},  oldForNew, "old",    "old",    "old",    "", oldWarning},
    {"DeprecatedAbbreviated",  vtString, {"new"},  oldForNew, "ol",     "old",    "old",    "", oldWarning},
    {"DeprecatedAndAllowed",   vtString, {"old"},  oldForNew, "old",    "old",    "old",    "", oldWarning},
    {"DeprecatedCountsInATie", vtString, {"other"}, oldForNew, "o",     "o",      {},
     "Ambiguous value for option 'x'. Possible values follows: 'other'", ""},
    {"DeprecatedWhereAllIs",   vtString, {},       oldForNew, "old",    "old",    "old",    "", ""},
    {"FirstReplacementStays",  vtString, {"new"},  {{"old", "new"}, {"old", "newer"}}, "old", "old", "old", "", oldWarning},
    {"DeprecatedNumber",       vtS32,    {1},      {{2.0, 1}}, "02",    "02",     2,        "",
     "Warning: '02' argument is deprecated for the option '-x'. Use the '' argument instead.\n"},
};
// clang-format on

TEST(Validate, ChecksCompletesAndWarns) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        const OptionDescription option = named("x", c.type, c.allowed, c.deprecated);
        std::string text = c.given;
        variant_t value;
        std::string error = "untouched";
        const CapturedStream warnings(std::cerr);

        const bool isValid = option.validate(text, value, error);

        EXPECT_EQ(isValid, *c.error == '\0');
        EXPECT_EQ(error, isValid ? "untouched" : c.error);
        EXPECT_EQ(text, c.text);
        EXPECT_EQ(warnings.text(), c.warning);
        if (isValid) {
            EXPECT_TRUE(value == c.value);
            EXPECT_EQ(value.type(), c.type);
        }
    }
}

// The order of these values is no strict weak order: whatever is found, nothing may break.
TEST(Validate, SurvivesDeprecatedValuesWithoutAnOrder) {
    Replacements deprecated{
        {9223372036854775808ULL, "a"},
        {0LL,                    "b"},
        {1ULL,                   "c"},
        {std::stod("nan"),       "d"},
        {"text",                 "e"}
    };
    const auto less = [](const auto& a, const auto& b) { return a.second < b.second; };
    do {
        const OptionDescription option = named("x", vtU64, {7ULL}, deprecated);
        const CapturedStream warnings(std::cerr);
        for (std::string text : {"7", "0", "1", "9223372036854775808"}) {
            variant_t value;
            std::string error;
            const bool isValid = option.validate(text, value, error);
            EXPECT_EQ(isValid, value == 7ULL || error.empty()) << error;
        }
    } while (std::next_permutation(deprecated.begin(), deprecated.end(), less));
}

TEST(AllowValue, CutsValuesUnlessToldOtherwise) {
    OptionDescription option;
    option.tokenize(0).allowDeprecatedValue("a", "b");
    EXPECT_EQ(option.tokenizer, '\0');
    option.allowValue("a");
    EXPECT_EQ(option.tokenizer, ',');
    option.tokenize(';').allowValue("b");
    EXPECT_EQ(option.tokenizer, ';');
    option.tokenize(0);
    EXPECT_EQ(option.tokenizer, '\0');
}

}  // namespace
}  // namespace zarn_3_3
