// Which texts are near to one that was mistyped.

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "diagnostics/likeness.h"

namespace zarn_3_3 {
namespace {

// The whole table, which the library never fills.
std::size_t wholeDistance(const std::string& a, const std::string& b) {
    std::vector<std::vector<std::size_t>> cells(a.size() + 1,
                                                std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            std::size_t least =
                i == 0 || j == 0 ? i + j : cells[i - 1][j - 1] + (a[i - 1] != b[j - 1]);
            least = i == 0 ? least : std::min(least, cells[i - 1][j] + 1);
            least = j == 0 ? least : std::min(least, cells[i][j - 1] + 1);
            const bool isSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            cells[i][j] = isSwapped ? std::min(least, cells[i - 2][j - 2] + 1) : least;
        }
    }
    return cells[a.size()][b.size()];
}

TEST(Likeness, IsThatOfTheWholeTable) {
    std::mt19937 numbers(1);
    const auto text = [&numbers] {
        std::string made(numbers() % 9, ' ');
        std::generate(
            made.begin(), made.end(), [&] { return static_cast<char>('a' + numbers() % 3); });
        return made;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::string a = text();
        const std::string b = text();
        ASSERT_EQ(internal::Nearest(a).distance(b), wholeDistance(a, b)) << a << " " << b;
    }
}

TEST(Likeness, FindsTheNearestThree) {
    const std::string x64(64, 'x');
    const struct {
        std::string typed;
        std::vector<std::string> offered;
        std::vector<std::string> found;
    } rows[] = {
        {"ab",        {"abc"},                                             {}                    },
        {"abc",       {"abd", "acb", "dbca", "ab", "abdc", "xyc"},         {"abd", "acb", "ab"}  },
        {"abcde",     {"abcxy", "xbcdey"},                                 {}                    },
        {"abcdef",    {"abcdxy", "abcxyz", "abcdefgh"},                    {"abcdxy", "abcdefgh"}},
        {"abcdefgh",  {"abcdexyz"},                                        {}                    },
        {"abcdefghi", {"abcdefxyz", "abcdewxyz"},                          {"abcdefxyz"}         },
        {"abcdefghi", {"abcdefxyz", "abcdefgxy", "abcdefghx", "abcdefgx"}, {"abcdefghx"}         },
        {x64,         {x64 + "yyy", x64 + "yyyy"},                         {x64 + "yyy"}         },
        {x64 + "x",   {x64},                                               {}                    },
    };
    for (const auto& row : rows) {
        internal::Nearest nearest(row.typed);
        for (const std::string& text : row.offered) {
            if (nearest.isNear(text)) {
                nearest.take(text);
            }
        }
        EXPECT_THAT(nearest.found(), testing::ElementsAreArray(row.found)) << row.typed;
    }
}

}  // namespace
}  // namespace zarn_3_3
