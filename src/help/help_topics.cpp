#include "help/help_topics.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>

#include "help/messages.h"
#include "options/action_modifiers.h"
#include "options/registered_option_storage.h"

namespace zarn_3_3::internal {
namespace {

// The items for which isWanted(item) holds, in the order of declaration.
template <typename IsWanted>
std::vector<const OptionDescription*> select(const RegisteredOptionStorage& registry,
                                             IsWanted isWanted) {
    std::vector<const OptionDescription*> selected;
    const OptionList& items = registry.items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (isWanted(items[i])) {
            selected.push_back(&items[i]);
        }
    }
    return selected;
}

// In the order of the names, whatever the order of declaration; one column for all of them.
std::string actionList(const std::map<std::string_view, std::string_view>& actions) {
    std::size_t longest = 0;
    for (const auto& action : actions) {
        longest = std::max(longest, action.first.size());
    }
    std::string text;
    for (const auto& [name, description] : actions) {
        text.append("    ").append(name).append(longest + 3 - name.size(), ' ');
        text.append(description).append("\n");
    }
    return text;
}

}  // namespace

HelpText HelpTopics::vocabulary(bool hidden) const {
    // Actions first: with them, options are asked for by action. A vocabulary whose actions are all
    // hidden shows its options as one without actions does.
    std::map<std::string_view, std::string_view> actions;  // from name to description
    for (const OptionDescription* const item : getGlobalActions()) {
        if (isSectionVisible(registry_.sectionKey(*item), hidden)) {
            actions[item->primaryName()] = item->description;
        }
    }
    if (actions.empty()) {
        const auto all = select(registry_, [](const OptionDescription&) { return true; });
        return render(all, hidden);
    }
    return {actionList(actions)};
}

HelpText HelpTopics::topic(const char* name, bool hidden) const {
    if (name == nullptr) {
        return vocabulary(hidden);
    }
    std::size_t index = 0;
    // Whole names alone: an abbreviation is for those who know what they want.
    if (findOption(name, index, registry_) != resultSuccess) {
        return unknownTopic(name, hidden);
    }
    // Kept: around the one entry stand the heads of all sections.
    return render({&registry_.items()[index]}, hidden);
}

HelpText HelpTopics::modifiersOf(const char* action, bool hidden) const {
    // Kept: null asks for nothing here, and for the vocabulary as a topic.
    if (action == nullptr) {
        return {};
    }
    std::size_t index = 0;
    if (findOption(action, index, registry_) != resultSuccess) {
        return unknownTopic(action, hidden);
    }
    // Kept: any item passes for an action here, and lists what shares a tag with it.
    std::vector<const OptionDescription*> modifiers;
    findActionModifiers(index, registry_.items(), modifiers);
    // Kept: without modifiers there are not even the heads of the sections.
    return modifiers.empty() ? HelpText() : render(modifiers, hidden);
}

HelpText HelpTopics::globalModifiers(bool hidden) const {
    return render(getGlobalModifiers(), hidden);
}

HelpText HelpTopics::render(const std::vector<const OptionDescription*>& items, bool hidden) const {
    return renderOptions(registry_.sectionList(), items, hidden);
}

HelpText HelpTopics::unknownTopic(const std::string& name, bool hidden) const {
    HelpText help = vocabulary(hidden);
    help.text.insert(0, messages::noSuchTopic(name));
    return help;
}

std::vector<const OptionDescription*> HelpTopics::getGlobalActions() const {
    return select(registry_, [](const OptionDescription& item) { return item.kind == kindAction; });
}

std::vector<const OptionDescription*> HelpTopics::getGlobalModifiers() const {
    return select(registry_, [](const OptionDescription& item) {
        return item.kind != kindAction && item.tags.empty();
    });
}

}  // namespace zarn_3_3::internal
