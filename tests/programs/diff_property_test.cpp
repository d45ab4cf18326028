// Whatever two tools take: a line that only the old one takes, or that the new one reads in another
// way, is told as breaking.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "comparison.h"
#include "declared_tool.h"
#include "random_vocabulary.h"

namespace vocabulary {
namespace {

using Texts = std::vector<std::string>;
using Given = std::vector<std::pair<std::string, std::string>>;

std::string reportOf(const Description& before, const Description& after) {
    Changes changes;
    compare(before, after, changes);
    return changes.report();
}

std::string listOf(const Texts& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += " " + text;
    }
    return list;
}

std::string shown(const Description& description) {
    std::string text = "flags " + std::to_string(description.flags) + "\n";
    for (const Item& item : description.items) {
        text += "  kind " + std::to_string(static_cast<int>(item.kind)) + " type " +
                std::to_string(static_cast<int>(item.type)) + " names" + listOf(item.names) +
                " tags" + listOf(item.tags) + " values" + listOf(item.values) + " cut " +
                item.separator + " default " + item.defaultValue +
                (item.isPositional ? " positional" : "");
        for (const DeprecatedValue& deprecated : item.deprecated) {
            text += " deprecated " + deprecated.value;
        }
        text += "\n";
    }
    for (const Texts& group : description.groups) {
        text += "  group" + listOf(group) + "\n";
    }
    return text;
}

class Pair {
public:
    explicit Pair(unsigned seed)
        : random_(seed),
          before_(random_.description()),
          after_(random_.nextVersionOf(before_)),
          pairing_(before_.items, after_.items),
          oldTool_(before_),
          newTool_(after_) {
        compare(before_, after_, changes_);
    }

    bool isBreaking() const { return changes_.isBreaking(); }

    // Whether such a line was met.
    bool checkLine() {
        const Texts line = random_.line(before_, after_);
        const Reading old = oldTool_.read(line);
        if (old.code != 0 || old.isUnknownSkipped || isNothingTaken(line)) {
            return false;
        }
        const Reading now = newTool_.read(line);
        if (now.code == 0 && pairedNames(now.given) == old.given && areDefaultsKept(old, now)) {
            return false;
        }
        EXPECT_TRUE(changes_.isBreaking())
            << "line:" << listOf(line) << "\n"
            << shown(before_) << shown(after_) << "new code " << now.code << "\n"
            << changes_.report();
        return true;
    }

private:
    // Behind "--" the modern face, which sets the flag, takes arguments for a positional item
    // alone.
    bool isNothingTaken(const Texts& line) const {
        return !hasItem(before_, isPositional) && (before_.flags & 4) != 0 &&
               std::find(line.begin(), line.end(), "--") != line.end();
    }

    Given pairedNames(const Given& given) const {
        Given paired;
        for (const auto& [name, value] : given) {
            for (std::size_t i = 0; i < after_.items.size(); ++i) {
                if (primaryName(after_.items[i]) == name) {
                    const std::size_t old = pairing_.before(i);
                    paired.emplace_back(
                        old == Pairing::none ? "new" : primaryName(before_.items[old]), value);
                }
            }
        }
        return paired;
    }

    bool areDefaultsKept(const Reading& old, const Reading& now) const {
        const Given paired = pairedNames(now.defaults);
        return std::all_of(old.defaults.begin(), old.defaults.end(), [&](const auto& each) {
            return std::find(paired.begin(), paired.end(), each) != paired.end();
        });
    }

    RandomVocabulary random_;
    Description before_;
    Description after_;
    Pairing pairing_;
    DeclaredTool oldTool_;
    DeclaredTool newTool_;
    Changes changes_;
};

TEST(DiffProperty, NothingHasChangedInWhatIsTheSame) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        const Description same = RandomVocabulary(seed).description();
        ASSERT_EQ(reportOf(same, same), "") << seed << shown(same);
    }
}

TEST(DiffProperty, WhatTheNewToolReadsInAnotherWayIsToldAsBreaking) {
    const char* const asked = std::getenv("VOCABULARY_PAIRS");
    const unsigned pairs = asked == nullptr ? 2000 : static_cast<unsigned>(std::atol(asked));
    int met = 0;
    int harmless = 0;
    for (unsigned seed = 0; seed < pairs && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Pair pair(seed);
        harmless += pair.isBreaking() ? 0 : 1;
        for (int line = pair.isBreaking() ? 18 : 0; line < 20; ++line) {
            met += pair.checkLine() ? 1 : 0;
        }
    }
    EXPECT_GT(met, 200);
    EXPECT_GT(harmless, 300);
}

}  // namespace
}  // namespace vocabulary
