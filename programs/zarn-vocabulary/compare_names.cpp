// Names and "no-" forms: what a user could type for an item, and what it means now.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "beginnings.h"
#include "comparison.h"
#include "probe.h"

namespace vocabulary {
namespace {

constexpr const char* off = "0";

bool has(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool isForm(const Item& item, const std::string& text) { return has(formsOf(item), text); }

// A value begins behind a "=" or white space, and a third dash makes no name.
std::string typablePart(const std::string& form) {
    return form.front() == '-' ? "" : form.substr(0, form.find_first_of("= \t\n\v\f\r"));
}

class NameComparison final : private Lookup {
public:
    explicit NameComparison(const Comparison& comparison)
        : comparison_(comparison),
          before_(Probe::ofNames(comparison.before.items)),
          after_(Probe::ofNames(comparison.after.items)) {}

    void compare() {
        for (item_ = 0; item_ < comparison_.before.items.size(); ++item_) {
            const Item& item = comparison_.before.items[item_];
            const std::size_t after = comparison_.pairing.after(item_);
            next_ = after == Pairing::none ? Item() : comparison_.after.items[after];
            for (const std::string& form : formsOf(item)) {
                compareForm(form, item);
            }
            for (const std::string& name : next_.names) {
                if (!has(item.names, name)) {
                    comparison_.changes.compatible("name-added",
                                                   primaryName(item),
                                                   quoted(typedName(name)) + " is a name of it");
                }
            }
        }
    }

private:
    void compareForm(const std::string& form, const Item& item) {
        const std::string part = form.empty() ? form : typablePart(form);
        const bool isTypable = part == form;
        if (part.empty()) {
            return;
        }
        // The value of a beginning is that of its form, so that "--no" stays "--no-color".
        expected_ = before_.name(part);
        if (expected_.item != item_) {
            return;
        }
        if (isTypable) {
            compareWhole(form, item);
        }
        const bool isGone = !isForm(next_, form);
        compareBeginnings(form,
                          part.size() - (isTypable ? 1 : 0),
                          *this,
                          isGone,
                          primaryName(item),
                          comparison_.changes);
    }

    // A "no-" form goes with the type of its item, of which is told elsewhere.
    void compareWhole(const std::string& form, const Item& item) {
        const Fate now = fate(form);
        const std::string text = quoted(typedName(form));
        if (now.kind == Fate::redirected) {
            comparison_.changes.breaking(
                "name-redirected", primaryName(item), text + " now means " + now.to);
        } else if (!next_.names.empty() && has(item.names, form) && !has(next_.names, form)) {
            comparison_.changes.breaking(
                "name-gone",
                primaryName(item),
                text + (now.kind == Fate::kept ? " is no name of it any more, and only begins one"
                                               : " is no name of it any more"));
        }
    }

    // What is a name itself is compared as such; what begins it begins two names.
    bool wasMeant(const std::string& text) override {
        if (ties_.count(text) != 0) {
            return false;
        }
        const Meaning meaning = before_.name(text);
        if (meaning.item == Meaning::nothing) {
            ties_.insert(text);
        }
        return meaning.item == item_ && meaning.value == expected_.value &&
               !isForm(comparison_.before.items[item_], text);
    }

    Fate fate(const std::string& text) override {
        const Meaning now = after_.name(text);
        if (now.item == Meaning::nothing) {
            return {Fate::lost, otherCandidate()};
        }
        const bool isSameWay = (now.value == off) == (expected_.value == off);
        if (now.item == comparison_.pairing.after(item_) && isSameWay) {
            return {};
        }
        const std::string& name = primaryName(comparison_.after.items[now.item]);
        return {Fate::redirected, quoted((now.value == off ? noPrefix : "") + name)};
    }

    // Of a tie, a form that belongs to another item where there is one.
    std::string otherCandidate() {
        const std::vector<std::string> candidates = after_.candidates();
        if (candidates.empty()) {
            return "";
        }
        const auto other = std::find_if_not(candidates.begin(),
                                            candidates.end(),
                                            [this](const auto& each) { return isWhole(each); });
        return quoted(other == candidates.end() ? candidates.back() : *other);
    }

    bool isWhole(const std::string& text) const override { return isForm(next_, text); }

    std::string typed(const std::string& text) const override { return typedName(text); }

    const Comparison& comparison_;
    Probe before_;
    Probe after_;
    std::set<std::string> ties_;  // beginnings of many names, which all of them would ask about
    std::size_t item_ = 0;        // of the old ones
    Item next_;                   // what became of it; without names when it is gone
    Meaning expected_;            // of the form that is compared
};

}  // namespace

void compareNames(const Comparison& comparison) { NameComparison(comparison).compare(); }

}  // namespace vocabulary
