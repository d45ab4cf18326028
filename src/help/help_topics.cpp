#include "help/help_topics.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>

#include "help/messages.h"
#include "options/action_modifiers.h"
#include "options/registered_option_storage.h"
#include "text/garbage.h"

namespace zarn_3_3::internal {
namespace {

// Appends pointers to the items for which isWanted(item) holds.
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

const char* HelpTopics::vocabulary(bool hidden) const {
    std::map<std::string_view, std::string_view> actions;  // from name to description
    for (const OptionDescription* const item : getGlobalActions()) {
        if (HelpRenderer::isVisible(registry.sectionKey(*item), hidden)) {
            actions[item->primaryName()] = item->description;
        }
    }
    if (actions.empty()) {
        const auto all = select(registry, [](const OptionDescription&) { return true; });
        return renderer.render(all, hidden);
    }
    return garbage.keep(actionList(actions));
}

const char* HelpTopics::topic(const char* name, bool hidden) const {
    if (name == nullptr) {
        return vocabulary(hidden);
    }
    std::size_t index = 0;
    if (findOption(name, index, registry) != resultSuccess) {
        return unknownTopic(name, hidden);
    }
    return renderer.render({&registry.items()[index]}, hidden);
}

const char* HelpTopics::modifiersOf(const char* action, bool hidden) const {
    if (action == nullptr) {
        return "";
    }
    std::size_t index = 0;
    if (findOption(action, index, registry) != resultSuccess) {
        return unknownTopic(action, hidden);
    }
    std::vector<const OptionDescription*> modifiers;
    findActionModifiers(index, registry.items(), modifiers);
    return modifiers.empty() ? "" : renderer.render(modifiers, hidden);
}

const char* HelpTopics::globalModifiers(bool hidden) const {
    return renderer.render(getGlobalModifiers(), hidden);
}

const char* HelpTopics::unknownTopic(const std::string& name, bool hidden) const {
    return garbage.keep(messages::noSuchTopic(name) + vocabulary(hidden));
}

std::vector<const OptionDescription*> HelpTopics::getGlobalActions() const {
    return select(registry, [](const OptionDescription& item) { return item.kind == kindAction; });
}

std::vector<const OptionDescription*> HelpTopics::getGlobalModifiers() const {
    return select(registry, [](const OptionDescription& item) {
        return item.kind != kindAction && item.tags.empty();
    });
}

}  // namespace zarn_3_3::internal
