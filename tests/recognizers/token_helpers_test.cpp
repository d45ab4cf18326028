#include "recognizers/token_helpers.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/grouping_locale.h"

namespace zarn_3_3 {
namespace {

struct SplitCase {
    const char* label;
    std::string argument;
    std::string name;
    const char* value;  // null: none attached, the output stays as it was
};

const SplitCase splitCases[] = {
    {"OneDash",                   "-opt",             "opt",           nullptr},
    {"TwoDashesOfDifferentKinds", "-\xE2\x80\x94opt", "opt",           nullptr},
    {"AlmostADash",               "\xE2\x80\x96x",    "\xE2\x80\x96x", nullptr},
    {"RunOfBlanks",               "--opt \t\v v w",   "opt",           "v w"  },
    {"CarriageReturn",            "--opt\rv",         "opt",           "v"    },
    {"OtherBlanksAreBytes",       "--o\xC2\xA0v",     "o\xC2\xA0v",    nullptr},
};

TEST(SplitOptionValue, CutsAtTheFirstSeparator) {
    for (const SplitCase& c : splitCases) {
        SCOPED_TRACE(c.label);
        std::string_view name = "stale";
        std::string_view value = "untouched";

        EXPECT_EQ(splitOptionValue(c.argument, &name, &value), c.value != nullptr);

        EXPECT_EQ(name, c.name);
        EXPECT_EQ(value, c.value != nullptr ? c.value : "untouched");
    }
}

TEST(SplitOptionValue, TakesTheBlanksOfTheGlobalLocale) {
    const GroupingLocale locale;
    const std::string argument = "--o\xA0 \xA0v";
    std::string_view name;
    std::string_view value;

    EXPECT_TRUE(splitOptionValue(argument, &name, &value));

    EXPECT_EQ(name, "o");
    EXPECT_EQ(value, "v");
}

TEST(GetDashLength, KnowsSixDashes) {
    for (const char* dash :
         {"\xE2\x80\x92", "\xE2\x80\x93", "\xE2\x80\x94", "\xE2\x80\x95", "\xE2\x81\x93"}) {
        EXPECT_EQ(getDashLength(dash, 0), 3U) << dash;
        EXPECT_EQ(getDashLength(std::string("x") + dash + "y", 1), 3U) << dash;
    }
    for (const char* other : {"\xE2\x80\x90", "\xE2\x80\x91", "\xE2\x80\x96", "\xE2\x88\x92"}) {
        EXPECT_EQ(getDashLength(other, 0), 0U) << other;
    }
    EXPECT_THROW(getDashLength("a", 2), std::out_of_range);
    EXPECT_THROW(getDashLength("", static_cast<std::size_t>(-1)), std::out_of_range);
}

// The cuts letter by letter. In a world without other dashes and blanks this is all there is.

std::size_t slowDashLength(const std::string& text, std::size_t pos) {
    for (const std::string dash : {"-", "\xE2\x80\x94"}) {
        if (text.substr(pos, dash.size()) == dash) {
            return dash.size();
        }
    }
    return 0;
}

bool slowSplit(std::string rest, std::string& name, std::string& value) {
    for (int dash = 0; dash < 2; ++dash) {
        rest = rest.substr(slowDashLength(rest, 0));
    }
    for (name = ""; !rest.empty(); rest = rest.substr(1)) {
        if (rest[0] == '=') {
            value = rest.substr(1);
            return true;
        }
        if (rest[0] == ' ') {
            while (!rest.empty() && rest[0] == ' ') {
                rest = rest.substr(1);
            }
            value = rest;
            return true;
        }
        name += rest[0];
    }
    return false;
}

void expectSlowCuts(const std::string& text) {
    for (std::size_t pos = 0; pos <= text.size(); ++pos) {
        ASSERT_EQ(getDashLength(text, pos), slowDashLength(text, pos)) << text << " at " << pos;
    }
    std::string_view name = "stale";
    std::string_view value = "untouched";
    std::string slowName;
    std::string slowValue = "untouched";
    ASSERT_EQ(splitOptionValue(text, &name, &value), slowSplit(text, slowName, slowValue));
    ASSERT_EQ(name, slowName) << text;
    ASSERT_EQ(value, slowValue) << text;
}

TEST(TokenHelpers, CutEveryShortTextLetterByLetter) {
    constexpr std::size_t longest = 6;
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < texts.size() && !HasFatalFailure(); ++i) {
        const std::string text = texts[i];
        expectSlowCuts(text);
        for (const char symbol : {'-', '=', 'a', ' ', '\xE2', '\x80', '\x94'}) {
            if (text.size() < longest) {
                texts.push_back(text + symbol);
            }
        }
    }
    EXPECT_EQ(texts.size(), 137257U);  // 7^0 + ... + 7^6
}

TEST(Split, KeepsEmptyPiecesButTheLast) {
    using Pieces = std::vector<std::string>;
    const std::vector<std::pair<const char*, Pieces>> cases{
        {"",      {}            },
        {"a",     {"a"}         },
        {"a,b",   {"a", "b"}    },
        {"a,,b",  {"a", "", "b"}},
        {",a",    {"", "a"}     },
        {"a,",    {"a"}         },
        {",",     {""}          },
        {",,",    {"", ""}      },
        {" a ,b", {" a ", "b"}  },
    };
    for (const auto& [text, pieces] : cases) {
        Pieces out{"before"};
        EXPECT_EQ(split(text, out), resultSuccess);
        out.erase(out.begin());
        EXPECT_EQ(out, pieces) << text;
    }
    std::set<std::string> tags{"b"};
    split("c,a,b", tags);
    EXPECT_EQ(tags, (std::set<std::string>{"a", "b", "c"}));
}

}  // namespace
}  // namespace zarn_3_3
