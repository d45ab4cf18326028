// Actions, what goes with them, and which of them go together.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "comparison.h"

namespace vocabulary {
namespace {

using Names = std::set<std::string>;

bool goesWith(const Item& item, const Item& action) {
    const std::string name = primaryName(action);
    return item.kind == Kind::option ||
           std::find(item.tags.begin(), item.tags.end(), name) != item.tags.end();
}

void compareModifiers(const Comparison& comparison, const Item& before, const Item& after) {
    const std::string name = primaryName(before);
    forEachPair(comparison, [&](const Item& oldAction, const Item& action) {
        if (!isAction(oldAction) || !isAction(action)) {
            return;
        }
        const std::string shown = quoted(typedName(primaryName(action)));
        if (goesWith(before, oldAction) && !goesWith(after, action)) {
            comparison.changes.breaking("action-lost", name, "it is refused with " + shown);
        } else if (!goesWith(before, oldAction) && goesWith(after, action)) {
            comparison.changes.compatible("action-gained", name, "it goes with " + shown);
        }
    });
}

void compareKinds(const Comparison& comparison, const Item& before, const Item& after) {
    const std::string name = primaryName(before);
    Changes& changes = comparison.changes;
    if (isAction(before) != isAction(after)) {
        changes.breaking("kind-changed",
                         name,
                         isAction(after) ? "it is an action now" : "it is no action any more");
    } else if (before.kind == Kind::option && after.kind == Kind::modifier) {
        changes.breaking("became-modifier", name, "it is refused where its actions are not given");
    } else if (before.kind == Kind::modifier && after.kind == Kind::option) {
        changes.compatible("became-global", name, "it goes with every action");
    } else if (before.kind == Kind::modifier) {
        compareModifiers(comparison, before, after);
    }
}

// The groups by the names that their actions have now, without those that say nothing: names of no
// action, and actions alone.
std::vector<Names> groupsOf(const Comparison& comparison, bool isBefore) {
    const Description& description = isBefore ? comparison.before : comparison.after;
    std::vector<Names> groups;
    for (const auto& listed : description.groups) {
        Names group;
        forEachPair(comparison, [&](const Item& before, const Item& after) {
            const std::string name = primaryName(isBefore ? before : after);
            if (isAction(before) && isAction(after) &&
                std::find(listed.begin(), listed.end(), name) != listed.end()) {
                group.insert(primaryName(after));
            }
        });
        if (group.size() > 1) {
            groups.push_back(group);
        }
    }
    return groups;
}

bool isInsideOne(const Names& group, const std::vector<Names>& groups) {
    return std::any_of(groups.begin(), groups.end(), [&](const Names& other) {
        return std::includes(other.begin(), other.end(), group.begin(), group.end());
    });
}

std::string listed(const Names& group) {
    std::string list;
    for (const std::string& name : group) {
        list += (list.empty() ? "" : ",") + name;
    }
    return list;
}

void compareGroups(const Comparison& comparison) {
    const std::vector<Names> before = groupsOf(comparison, true);
    const std::vector<Names> after = groupsOf(comparison, false);
    for (const Names& group : before) {
        if (!isInsideOne(group, after)) {
            comparison.changes.breaking(
                "group-gone", listed(group), "these actions can't be given together any more");
        }
    }
    for (const Names& group : after) {
        if (!isInsideOne(group, before)) {
            comparison.changes.compatible(
                "group-added", listed(group), "these actions can be given together");
        }
    }
}

bool hasDefault(const Item& item) { return !item.defaultValue.empty(); }

// A default alone is enough for a tool to want an action, and that of an action gives it.
void compareNewDefaults(const Comparison& comparison) {
    const bool wantsAction =
        hasItem(comparison.before, isAction) && !hasItem(comparison.before, hasDefault);
    for (std::size_t i = 0; i < comparison.after.items.size(); ++i) {
        const Item& item = comparison.after.items[i];
        if (comparison.pairing.before(i) != Pairing::none || !hasDefault(item)) {
            continue;
        }
        if (isAction(item)) {
            comparison.changes.breaking(
                "action-by-default", primaryName(item), "it excludes other actions by its default");
        } else if (wantsAction) {
            comparison.changes.breaking("default-wants-action",
                                        primaryName(item),
                                        "its default is refused where no action is given");
        }
    }
}

}  // namespace

void compareActions(const Comparison& comparison) {
    forEachPair(comparison, [&](const Item& before, const Item& after) {
        compareKinds(comparison, before, after);
    });
    compareGroups(comparison);
    compareNewDefaults(comparison);
    const auto& items = comparison.after.items;
    const auto first = std::find_if(items.begin(), items.end(), isAction);
    if (first != items.end() && !hasItem(comparison.before, isAction)) {
        comparison.changes.breaking("first-action",
                                    primaryName(*first),
                                    "the tool had no actions, and now refuses options without one");
    }
}

}  // namespace vocabulary
