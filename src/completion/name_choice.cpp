#include "completion/name_choice.h"

#include <algorithm>
#include <iterator>

#include "completion/line_walk.h"
#include "help/help_renderer.h"
#include "options/action_modifiers.h"
#include "parser/action_groups.h"
#include "parser/basic_parser.h"
#include "recognizers/argument_reading.h"
#include "text/typed_form.h"

namespace zarn_3_3::internal {
namespace {

bool isOnByDefault(const OptionDescription& item) {
    return item.hasDefault && item.defaultVal.get<bool>();
}

// Both ascend, as numbers of groups do.
std::vector<std::size_t> inBoth(const std::vector<std::size_t>& a,
                                const std::vector<std::size_t>& b) {
    std::vector<std::size_t> both;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both));
    return both;
}

}  // namespace

NameChoice::NameChoice(const BasicParser& parser, const std::set<std::string>& given)
    : registry_(parser.vocabulary()), groups_(parser.actionGroups()), given_(given) {
    for (const std::string& action : given) {
        const std::vector<std::size_t>& holding = groups_.holding(action);
        // From the groups of the first one on: an empty list shares nothing with any other.
        commonGroups_ = &action == &*given.begin() ? holding : inBoth(commonGroups_, holding);
    }
}

std::vector<Candidate> NameChoice::namesOf(std::string_view dashes, std::string_view beginning) {
    dashes_ = dashes;
    beginning_ = beginning;
    const std::vector<std::size_t> open = openItems();
    bool isFound = false;
    for (const std::size_t number : open) {
        const OptionDescription& item = registry_.items()[number];
        // isFound is asked last: what stands behind a name that was found is added too.
        isFound = (!item.names.empty() && addName(number, item.names[0], true)) || isFound;
    }
    // Synonyms are for those who know them: they would only lengthen the list. A "no-" form that
    // was found keeps away none but theirs.
    const bool isAlone = found_.empty();
    for (std::size_t at = 0; !isFound && at < open.size(); ++at) {
        const OptionDescription& item = registry_.items()[open[at]];
        for (std::size_t i = 1; i < item.names.size(); ++i) {
            addName(open[at], item.names[i], isAlone);
        }
    }
    return std::move(found_);
}

std::vector<std::size_t> NameChoice::openItems() const {
    std::vector<std::size_t> actions;
    std::vector<std::size_t> modifiers;
    std::vector<std::size_t> options;
    for (std::size_t i = 0; i < registry_.items().size(); ++i) {
        const OptionDescription& item = registry_.items()[i];
        if (isOpen(item)) {
            std::vector<std::size_t>& ofKind = item.kind == kindAction ? actions
                                               : item.isModifier()     ? modifiers
                                                                       : options;
            ofKind.push_back(i);
        }
    }
    actions.insert(actions.end(), modifiers.begin(), modifiers.end());
    actions.insert(actions.end(), options.begin(), options.end());
    return actions;
}

// Those that help shows, as far as the rules on actions let them stand there.
bool NameChoice::isOpen(const OptionDescription& item) const {
    if (item.isPositional || !isSectionVisible(registry_.sectionKey(item), false)) {
        return false;
    }
    if (!given_.empty()) {
        return goesWithGiven(item);
    }
    // Who begins to type a modifier may mean to name its action later.
    return !beginning_.empty() || !registry_.hasActions() || !item.isModifier();
}

bool NameChoice::goesWithGiven(const OptionDescription& item) const {
    if (item.kind == kindAction) {
        return given_.count(item.primaryName()) == 0 && isInCommonGroup(item.primaryName());
    }
    // One of several actions is enough for a modifier, as it is for the rules.
    return item.tags.empty() || isIntersected(item.tags, given_);
}

bool NameChoice::isInCommonGroup(const std::string& action) const {
    return !inBoth(commonGroups_, groups_.holding(action)).empty();
}

bool NameChoice::addName(std::size_t number, std::string_view name, bool withNoForm) {
    const bool isAdded = addForm(number, name);
    const OptionDescription& item = registry_.items()[number];
    // Who has typed nothing yet sees those "no-" forms that would change something.
    if (withNoForm && item.type == vtBool && (!beginning_.empty() || isOnByDefault(item))) {
        addForm(number, std::string(noPrefix).append(name));
    }
    return isAdded;
}

// Only what is read back as this form of this item: a name may hold what cannot be typed, or belong
// to an item that was declared earlier.
bool NameChoice::addForm(std::size_t number, std::string_view form) {
    if (form.substr(0, beginning_.size()) != beginning_) {
        return false;
    }
    std::string word = dashes_.empty() ? typedForm(form) : std::string(dashes_).append(form);
    CutOption cut;
    const bool isTypeable = cutOption(word, globalTextLocale(), cut) && !cut.hasValue &&
                            cut.isNamed() && cut.name == form;
    if (!isTypeable || NamedItem(form, registry_).item != number) {
        return false;
    }
    const OptionDescription& item = registry_.items()[number];
    // No shell sets a blank behind "=", so the value follows in this word, where it may begin with
    // a dash.
    word += waitsForValue(item) ? "=" : "";
    found_.push_back({std::move(word), item.description});
    return true;
}

}  // namespace zarn_3_3::internal
