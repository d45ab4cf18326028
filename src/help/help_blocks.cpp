#include "help/help_blocks.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <tuple>
#include <utility>

#include "help/messages.h"

namespace zarn_3_3::internal {
namespace {

enum Group { itsActions, itsArguments, optionsOfActions, commonOptions };

}  // namespace

// In the order in which blocks stand.
struct HelpBlocks::Place {
    std::size_t section;
    Group group;
    std::vector<std::size_t> actions;  // those of `optionsOfActions`

    bool operator<(const Place& other) const {
        return std::tie(section, group, actions) <
               std::tie(other.section, other.group, other.actions);
    }
};

bool goesWith(const ShownItem& shown, const ShownItem& action) {
    return !shown.isAction() &&
           (shown.actions.empty() ||
            std::binary_search(shown.actions.begin(), shown.actions.end(), action.number));
}

HelpBlocks::HelpBlocks(const std::vector<ShownItem>& items, const SectionList& sections)
    : items_(items), sections_(sections) {
    for (const ShownItem& shown : items) {
        if (shown.isAction() && !shown.isHidden) {
            actions_.push_back(&shown);
        }
    }
}

std::vector<HelpBlock> HelpBlocks::of(const ShownItem* action, bool withHidden) const {
    std::map<Place, HelpBlock> byPlace;
    for (const ShownItem& shown : items_) {
        const bool isWanted = action == nullptr || goesWith(shown, *action);
        if (isWanted && (withHidden || !shown.isHidden)) {
            const Place place = placeOf(shown, action);
            const auto found = byPlace.find(place);
            HelpBlock& block =
                found != byPlace.end()
                    ? found->second
                    : byPlace.emplace(place, blockAt(place, shown, action)).first->second;
            block.items.push_back(&shown);
        }
    }
    std::vector<HelpBlock> blocks;
    for (auto& [place, block] : byPlace) {
        blocks.push_back(std::move(block));
    }
    return blocks;
}

std::string HelpBlocks::actionNames(const ShownItem& shown, const char* lastSeparator) const {
    std::vector<std::string> names;
    for (const std::size_t action : actionsOf(shown)) {
        names.push_back(typedForm(items_[action].item->primaryName()));
    }
    return messages::listed(names, lastSeparator);
}

HelpBlocks::Place HelpBlocks::placeOf(const ShownItem& shown, const ShownItem* action) const {
    const std::size_t section = shown.item->section;
    if (shown.isHidden) {
        return {sections_.size(), commonOptions, {}};
    }
    if (!sections_[section].key.empty() || !sections_[section].title.empty()) {
        return {section, commonOptions, {}};
    }
    if (!shown.isOption()) {
        return {section, shown.isAction() ? itsActions : itsArguments, {}};
    }
    if (action != nullptr) {
        return {section, shown.actions.empty() ? commonOptions : optionsOfActions, {}};
    }
    std::vector<std::size_t> actions = actionsOf(shown);
    const Group group = actions.empty() ? commonOptions : optionsOfActions;
    return {section, group, std::move(actions)};
}

HelpBlock HelpBlocks::blockAt(const Place& place,
                              const ShownItem& shown,
                              const ShownItem* action) const {
    const bool tellsActions = action == nullptr && place.group != optionsOfActions;
    return {titleAt(place, shown, action), {}, tellsActions};
}

std::string HelpBlocks::titleAt(const Place& place,
                                const ShownItem& shown,
                                const ShownItem* action) const {
    const Section& section = sections_[shown.item->section];
    if (place.section == sections_.size()) {
        return section.title.empty() ? messages::hiddenOptions : section.title;
    }
    if (!section.title.empty() || !section.key.empty()) {
        return section.title.empty() ? section.key : section.title;
    }
    switch (place.group) {
        case itsActions:
            return messages::actions;
        case itsArguments:
            return messages::arguments;
        case optionsOfActions:
            return messages::optionsOf(action != nullptr ? typedForm(action->item->primaryName())
                                                         : actionNames(shown, messages::andAlso));
        default:
            return messages::options;
    }
}

std::vector<std::size_t> HelpBlocks::actionsOf(const ShownItem& shown) const {
    std::vector<std::size_t> visible;
    std::copy_if(shown.actions.begin(),
                 shown.actions.end(),
                 std::back_inserter(visible),
                 [this](std::size_t action) { return !items_[action].isHidden; });
    return visible.size() == actions_.size() ? std::vector<std::size_t>() : visible;
}

}  // namespace zarn_3_3::internal
