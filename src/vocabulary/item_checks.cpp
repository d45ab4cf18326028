// Mistakes in what an item is said to belong to, and in its texts.

#include <algorithm>
#include <string_view>

#include "help/help_renderer.h"
#include "options/registered_option_storage.h"
#include "text/utf8.h"
#include "vocabulary/checks.h"
#include "vocabulary/messages.h"

namespace zarn_3_3::internal {
namespace {

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

// A value without a text reads as the empty one, which nothing is wrong with.
bool isValueUtf8(const variant_t& value) { return isUtf8(plinth2::get_variant_value(value, "")); }

bool hasOnlyUtf8(const OptionDescription& item) {
    const auto arePairs = [](const auto& each) {
        return isValueUtf8(each.first) && isValueUtf8(each.second);
    };
    return isUtf8(item.description) && isValueUtf8(item.defaultVal) &&
           std::all_of(item.names.begin(), item.names.end(), isUtf8) &&
           std::all_of(item.tags.begin(), item.tags.end(), isUtf8) &&
           std::all_of(item.allowedValues.begin(), item.allowedValues.end(), isValueUtf8) &&
           std::all_of(item.deprecatedValues.begin(), item.deprecatedValues.end(), arePairs);
}

}  // namespace

// By a synonym too, so that a finding can name the primary name, by which alone modifiers and
// groups know an action.
const OptionDescription* findAction(std::string_view name,
                                    const RegisteredOptionStorage& registry) {
    // A synonym gives one name to several items, of which any may be the action.
    const OptionDescription* found = nullptr;
    registry.names().isAnyNamed(name, [&](std::size_t number) {
        const OptionDescription& item = registry.items()[number];
        found = item.kind == kindAction ? &item : nullptr;
        return found != nullptr;
    });
    return found;
}

void checkActions(const OptionDescription& item,
                  const RegisteredOptionStorage& registry,
                  Findings& findings) {
    // The tags of an action are its own names.
    if (item.kind == kindAction) {
        return;
    }
    for (const std::string& tag : item.tags) {
        const OptionDescription* const action = findAction(tag, registry);
        if (action == nullptr) {
            findings.error("unknown-action", item.primaryName(), messages::unknownAction(tag));
        } else if (action->primaryName() != tag) {
            // Help finds the item by any name of the action, but the rules refuse it with that very
            // one.
            findings.error("action-synonym",
                           item.primaryName(),
                           messages::actionSynonym(tag, action->primaryName()));
        }
    }
}

void checkTexts(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings) {
    const OptionDescription& item = registry.asDeclared(number);
    // A hidden item is for a few, who know what it does.
    if (item.description.empty() && isSectionVisible(registry.sectionKey(item), false)) {
        findings.warning("no-help", item.primaryName(), messages::noHelp);
    }
    const Section& section = registry.sectionList()[item.section];
    if (!hasOnlyUtf8(item) || !isUtf8(section.key) || !isUtf8(section.title) ||
        !isUtf8(registry.valueName(number))) {
        findings.warning("not-utf8", item.primaryName(), messages::notUtf8);
    }
}

}  // namespace zarn_3_3::internal
