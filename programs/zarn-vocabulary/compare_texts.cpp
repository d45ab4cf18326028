// What help and documents show, and parsing does not notice.

#include <algorithm>
#include <string>
#include <vector>

#include "comparison.h"

namespace vocabulary {
namespace {

void compareItemTexts(const Comparison& comparison, const Item& before, const Item& after) {
    const std::string name = primaryName(before);
    Changes& changes = comparison.changes;
    if (name != primaryName(after)) {
        changes.text("primary-changed", name, "its first name is " + quoted(primaryName(after)));
    }
    if (before.help != after.help) {
        changes.text("help-changed", name, "it has another description");
    }
    if (before.isHidden != after.isHidden) {
        changes.text(
            "hidden-changed", name, after.isHidden ? "help leaves it out" : "help shows it");
    } else if (before.section != after.section) {
        changes.text("section-changed", name, "it stands in the section " + quoted(after.section));
    }
    if (before.valueName != after.valueName) {
        changes.text("value-name-changed",
                     name,
                     "help calls its value " + quoted(after.valueName) + ", and called it " +
                         quoted(before.valueName));
    }
}

void compareTitles(const Comparison& comparison) {
    for (const Section& before : comparison.before.sections) {
        for (const Section& after : comparison.after.sections) {
            if (before.key == after.key && before.title != after.title) {
                comparison.changes.text(
                    "title-changed", before.key, "the section is called " + quoted(after.title));
            }
        }
    }
}

// Whether what both tools have stands in the same order.
bool isOrderKept(const Comparison& comparison) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < comparison.before.items.size(); ++i) {
        if (comparison.pairing.after(i) != Pairing::none) {
            places.push_back(comparison.pairing.after(i));
        }
    }
    return std::is_sorted(places.begin(), places.end());
}

}  // namespace

void compareTexts(const Comparison& comparison) {
    const Description& before = comparison.before;
    const Description& after = comparison.after;
    Changes& changes = comparison.changes;
    const auto compareText =
        [&](const char* id, const std::string& old, const std::string& now, const char* what) {
            if (old != now) {
                changes.text(id, before.name, std::string(what) + quoted(now));
            }
        };
    compareText("tool-renamed", before.name, after.name, "the tool is called ");
    compareText("version-changed", before.version, after.version, "its version is ");
    compareText("summary-changed", before.summary, after.summary, "its summary is ");
    compareTitles(comparison);
    forEachPair(comparison,
                [&](const Item& old, const Item& now) { compareItemTexts(comparison, old, now); });
    if (!isOrderKept(comparison)) {
        changes.text("order-changed", before.name, "help shows the items in another order");
    }
}

}  // namespace vocabulary
