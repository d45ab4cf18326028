#include "platform/best_match.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace plinth2 {
namespace {

using Texts = std::vector<std::string>;

Texts walk(generic_iterator_t<std::string> iterator) {
    Texts texts;
    for (; !iterator.atEnd(); iterator.advance()) {
        texts.push_back(iterator.current());
    }
    return texts;
}

struct Search {
    const char* label;
    Texts candidates;
    std::string text;
    Texts matches;
};

const Search searches[] = {
    {"NoCandidates",             {},                              "",        {}                      },
    {"NothingBeginsWithIt",      {"verbose"},                     "erb",     {}                      },
    {"LongerThanEveryCandidate", {"ver"},                         "verb",    {}                      },
    {"CaseCounts",               {"Verbose"},                     "v",       {}                      },
    {"NearMissIsNoMatch",        {"verbose"},                     "verbsoe", {}                      },
    {"OneBeginning",             {"quiet", "verbose"},            "ver",     {"verbose"}             },
    {"OneBeginningTwice",        {"verbose", "quiet", "verbose"}, "ver",     {"verbose"}             },
    {"TieInCandidateOrder",      {"version", "quiet", "verbose"}, "ver",     {"version", "verbose"}  },
    {"TieCountsEachTextOnce",    {"b1", "b2", "b1", "b3", "b2"},  "b",       {"b1", "b2", "b3"}      },
    {"EqualBeatsLonger",         {"version", "ver", "verbose"},   "ver",     {"ver"}                 },
    {"EqualTwiceIsOne",          {"version", "ver", "ver"},       "ver",     {"ver"}                 },
    {"EmptyTextBeginsAll",       {"b", "a"},                      "",        {"b", "a"}              },
    {"EmptyTextEqualsEmptyName", {"b", ""},                       "",        {""}                    },
    {"BytesOfACharacter",        {"\xC3\xA4", "\xC3\xB6"},        "\xC3",    {"\xC3\xA4", "\xC3\xB6"}},
};

TEST(FindBestMatch, LeavesTheMatchesInCandidateOrder) {
    for (const Search& search : searches) {
        SCOPED_TRACE(search.label);
        generic_iterator_t<std::string> matches(Texts{"stale"});

        const int count =
            find_best_match(generic_iterator_t(search.candidates), search.text, matches);

        EXPECT_EQ(walk(matches), search.matches);
        EXPECT_EQ(count, static_cast<int>(search.matches.size()));
    }
}

TEST(FindBestMatch, MayPutItsMatchesInThePlaceOfTheCandidates) {
    generic_iterator_t<std::string> names(Texts{"version", "quiet", "verbose"});
    EXPECT_EQ(find_best_match(names, "v", names), 2);
    EXPECT_EQ(find_best_match(names, "verb", names), 1);
    EXPECT_EQ(names.current(), "verbose");
}

}  // namespace
}  // namespace plinth2
