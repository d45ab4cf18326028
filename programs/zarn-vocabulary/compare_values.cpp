// What an item with values takes, and what becomes of it.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "beginnings.h"
#include "comparison.h"
#include "probe.h"

namespace vocabulary {
namespace {

bool takesText(const Item& item) { return item.type == Type::text; }

// Deprecated values without allowed ones have no say.
bool isRestricted(const Item& item) { return !item.values.empty(); }

bool isAllowed(const Item& item, const std::string& value) {
    return std::find(item.values.begin(), item.values.end(), value) != item.values.end();
}

const DeprecatedValue* findDeprecated(const Item& item, const std::string& value) {
    const auto found = std::find_if(item.deprecated.begin(),
                                    item.deprecated.end(),
                                    [&](const auto& each) { return each.value == value; });
    return found == item.deprecated.end() ? nullptr : &*found;
}

bool isTaken(const Item& item, const std::string& value) {
    return isAllowed(item, value) || findDeprecated(item, value) != nullptr;
}

// All that is taken, each once, the allowed ones first.
std::vector<std::string> accepted(const Item& item) {
    std::vector<std::string> all;
    std::set<std::string> seen;
    const auto take = [&](const std::string& value) {
        if (seen.insert(value).second) {
            all.push_back(value);
        }
    };
    std::for_each(item.values.begin(), item.values.end(), take);
    for (const DeprecatedValue& deprecated : item.deprecated) {
        take(deprecated.value);
    }
    return all;
}

// Both items take texts, the old one from a list.
class AbbreviatedValues final : private Lookup {
public:
    AbbreviatedValues(const Item& before, const Item& after, Changes& changes)
        : item_(before),
          after_(after),
          changes_(changes),
          beforeProbe_(Probe::ofValues(before)),
          afterProbe_(Probe::ofValues(after)) {}

    void compare() {
        for (const std::string& value : accepted(item_)) {
            candidate_ = value;
            const std::size_t cut = value.find_first_of(item_.separator + "\n\r");
            const bool isTypable = cut == std::string::npos;
            const std::size_t longest = isTypable ? value.size() : cut;
            const bool isGone = isRestricted(after_) && !isTaken(after_, value);
            compareBeginnings(value,
                              longest - (isTypable && !value.empty() ? 1 : 0),
                              *this,
                              isGone,
                              primaryName(item_),
                              changes_);
        }
    }

private:
    bool wasMeant(const std::string& text) override {
        const Meaning meaning = beforeProbe_.value(text);
        return meaning.item != Meaning::nothing && meaning.value == candidate_ &&
               text != candidate_;
    }

    Fate fate(const std::string& text) override {
        if (!isRestricted(after_)) {
            return {Fate::redirected, "no more than it says"};
        }
        const Meaning now = afterProbe_.value(text);
        if (now.item == Meaning::nothing) {
            return {Fate::lost, otherCandidate()};
        }
        return now.value == candidate_ ? Fate() : Fate{Fate::redirected, quoted(now.value)};
    }

    std::string otherCandidate() {
        for (const std::string& candidate : afterProbe_.candidates()) {
            if (candidate != candidate_) {
                return quoted(candidate);
            }
        }
        return "";
    }

    bool isWhole(const std::string& text) const override { return isTaken(after_, text); }

    std::string typed(const std::string& text) const override {
        return typedName(primaryName(item_)) + "=" + text;
    }

    const Item& item_;
    const Item& after_;
    Changes& changes_;
    Probe beforeProbe_;
    Probe afterProbe_;
    std::string candidate_;
};

void compareFormerValue(const Comparison& comparison,
                        const Item& before,
                        const Item& after,
                        const std::string& value) {
    const DeprecatedValue* const was = findDeprecated(before, value);
    const DeprecatedValue* const is = findDeprecated(after, value);
    const std::string name = primaryName(before);
    Changes& changes = comparison.changes;
    if (is == nullptr && !isAllowed(after, value)) {
        changes.breaking("value-gone", name, quoted(value) + " is not allowed any more");
    } else if (is != nullptr && was == nullptr) {
        changes.compatible(
            "value-deprecated",
            name,
            quoted(value) + " is taken with a warning, for " + quoted(is->replacement));
    } else if (is == nullptr && was != nullptr) {
        changes.compatible("value-restored", name, quoted(value) + " is taken without a warning");
    } else if (is != nullptr && is->replacement != was->replacement) {
        changes.breaking("replacement-changed",
                         name,
                         quoted(value) + " now stands for " + quoted(is->replacement) +
                             ", and no more for " + quoted(was->replacement));
    }
}

void compareLists(const Comparison& comparison, const Item& before, const Item& after) {
    for (const std::string& value : accepted(before)) {
        compareFormerValue(comparison, before, after, value);
    }
    const std::vector<std::string> old = accepted(before);
    for (const std::string& value : accepted(after)) {
        if (std::find(old.begin(), old.end(), value) == old.end()) {
            comparison.changes.compatible(
                "value-added", primaryName(before), quoted(value) + " is taken");
        }
    }
}

bool areListsAlike(const Item& before, const Item& after) {
    const auto isSame = [](const DeprecatedValue& a, const DeprecatedValue& b) {
        return a.value == b.value && a.replacement == b.replacement;
    };
    return before.values == after.values && std::equal(before.deprecated.begin(),
                                                       before.deprecated.end(),
                                                       after.deprecated.begin(),
                                                       after.deprecated.end(),
                                                       isSame);
}

}  // namespace

void compareValues(const Comparison& comparison, const Item& before, const Item& after) {
    const std::string name = primaryName(before);
    if (!isRestricted(before) && isRestricted(after)) {
        comparison.changes.breaking(
            "values-restricted", name, "only the values of a list are taken now");
    }
    if (!isRestricted(before) || areListsAlike(before, after)) {
        return;
    }
    if (isRestricted(after)) {
        compareLists(comparison, before, after);
    } else {
        comparison.changes.compatible("values-freed", name, "every value of its type is taken");
    }
    if (takesText(before) && takesText(after)) {
        AbbreviatedValues(before, after, comparison.changes).compare();
    }
}

}  // namespace vocabulary
