#include "text/best_match.h"

#include <gtest/gtest.h>

namespace plinth2 {
namespace {

using Texts = std::vector<std::string>;

struct Search {
    const char* text;
    Texts candidates;
    Texts matches;
};

const Search searches[] = {
    {"ab",  {"abc", "b", "cab"},          {"abc"}       },
    {"ab",  {"abc", "ab", "abd"},         {"ab"}        },
    {"ab",  {"abd", "x", "abc", "abd"},   {"abd", "abc"}},
    {"ab",  {"abc", "abc"},               {"abc"}       },
    {"",    {"b", "a"},                   {"b", "a"}    },
    {"AB",  {"abc"},                      {}            },
    {"abc", {"ab", "abd", "xabc", "acb"}, {}            },
    {"ab",  {},                           {}            },
};

TEST(BestMatch, IsEqualOrWhateverBeginsWithTheText) {
    for (const Search& search : searches) {
        SCOPED_TRACE(testing::PrintToString(search.candidates) + " for " + search.text);
        generic_iterator_t<std::string> best;
        const int count =
            find_best_match(generic_iterator_t<std::string>(search.candidates), search.text, best);
        Texts matches;
        for (; !best.atEnd(); best.advance()) {
            matches.push_back(best.current());
        }
        EXPECT_EQ(matches, search.matches);
        EXPECT_EQ(count, static_cast<int>(search.matches.size()));
    }
}

}  // namespace
}  // namespace plinth2
