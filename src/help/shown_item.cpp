#include "help/shown_item.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "help/help_renderer.h"
#include "help/messages.h"
#include "text/filled.h"

namespace zarn_3_3::internal {
namespace {

using ActionsByTag = std::multimap<std::string_view, std::size_t>;

bool isShort(std::string_view name) { return name.size() == 1; }

std::string_view dashesOf(std::string_view name) { return isShort(name) ? "-" : "--"; }

std::string_view valueWord(const OptionDescription& item) {
    if (item.isPositional) {
        return item.primaryName();
    }
    switch (item.type) {
        case vtString:
            return messages::anyText;
        case vtDouble:
            return messages::anyNumber;
        default:
            return messages::anyInteger;
    }
}

std::string nameOf(const OptionDescription& item, std::string_view name, bool isEmphasized) {
    const bool isBoth = item.type == vtBool && name == item.primaryName();
    return bold(filled("{}{}{}", {dashesOf(name), isBoth ? "[no-]" : "", name}), isEmphasized);
}

std::string withValue(const ShownItem& shown, const std::string& names) {
    const bool takesValue = shown.item->type != vtNull && shown.item->type != vtBool;
    return takesValue ? filled("{} {}", {names, shown.valueName}) : names;
}

std::string valuesOf(const OptionDescription& item) {
    std::vector<std::string> values;
    for (const variant_t& allowed : item.allowedValues) {
        const std::string value = item.toString(allowed);
        values.push_back(value.empty() ? "\"\"" : value);
    }
    return messages::listed(values, messages::orElse);
}

// Empty for none: a default with an empty text is none, in a result too.
std::string defaultOf(const OptionDescription& item) {
    if (!item.hasDefault || item.type == vtNull) {
        return "";
    }
    if (item.type == vtBool) {
        return item.defaultVal.get<bool>() ? messages::on : messages::off;
    }
    return item.getDefaultValueAsText();
}

// Takes the full stop, which goes behind what is added. An ellipsis stays.
bool takeFullStop(std::string& text) {
    const std::size_t stop = text.find_last_not_of('.') + 1;
    const bool isThere = stop + 1 == text.size();
    text.erase(isThere ? stop : text.size());
    return isThere;
}

std::vector<std::size_t> actionsOf(const OptionDescription& item, const ActionsByTag& byTag) {
    std::set<std::size_t> found;
    for (const std::string& tag : item.tags) {
        const auto [begin, end] = byTag.equal_range(tag);
        std::transform(begin, end, std::inserter(found, found.end()), [](const auto& action) {
            return action.second;
        });
    }
    return {found.begin(), found.end()};
}

}  // namespace

bool ShownItem::hasShortName() const {
    return !item->isPositional && std::any_of(item->names.begin(), item->names.end(), isShort);
}

std::string ShownItem::asTyped(bool isEmphasized) const {
    return withValue(*this, nameOf(*item, item->primaryName(), isEmphasized));
}

std::string ShownItem::head(bool isEmphasized) const {
    if (item->isPositional) {
        return bold(valueName, isEmphasized);
    }
    std::vector<std::string> shortNames;
    std::vector<std::string> names;
    for (const std::string& name : item->names) {
        (isShort(name) ? shortNames : names).push_back(nameOf(*item, name, isEmphasized));
    }
    names.insert(names.begin(), shortNames.begin(), shortNames.end());
    return withValue(*this, messages::listed(names, ", "));
}

std::string ShownItem::place(bool isRequired, bool isLast) const {
    const char* const many = isLast && !item->takesOneValue ? "..." : "";
    return filled(isRequired ? "{}{}" : "[{}{}]", {valueName, many});
}

std::string ShownItem::description(const std::string& actionNames) const {
    std::string text(item->description);
    const std::string values = valuesOf(*item);
    const std::string byDefault = defaultOf(*item);
    std::string notes;
    const auto note = [&](std::string (*say)(std::string_view), std::string_view about) {
        if (!about.empty()) {
            notes.append(notes.empty() ? "" : "; ").append(say(about));
        }
    };
    note(messages::onlyWith, actionNames);
    note(messages::byDefault, byDefault);
    note(messages::fromVariable, variable);
    if (values.empty() && notes.empty()) {
        return text;
    }
    const bool hasStop = takeFullStop(text);
    if (!values.empty()) {
        text.append(text.empty() ? "" : ": ").append(values);
    }
    if (!notes.empty()) {
        text.append(text.empty() ? "" : " ").append("(").append(notes).append(")");
    }
    return text.append(hasStop ? "." : "");
}

std::vector<ShownItem> shownItems(const RegisteredOptionStorage& registry) {
    std::vector<ShownItem> items;
    ActionsByTag byTag;
    for (std::size_t i = 0; i < registry.items().size(); ++i) {
        const OptionDescription& item = registry.asDeclared(i);
        const std::string_view name = registry.valueName(i);
        items.push_back({&item,
                         i,
                         name.empty() ? valueWord(item) : name,
                         registry.variableName(i),
                         {},
                         isSectionVisible(registry.sectionKey(item), true)});
        for (const std::string& tag : item.tags) {
            if (items.back().isAction()) {
                byTag.emplace(tag, i);
            }
        }
    }
    for (ShownItem& shown : items) {
        if (!shown.isAction()) {
            shown.actions = actionsOf(*shown.item, byTag);
        }
        // What goes with hidden actions alone would give them away.
        shown.isHidden = shown.isHidden ||
                         (!shown.actions.empty() &&
                          std::all_of(shown.actions.begin(), shown.actions.end(), [&](auto action) {
                              return items[action].isHidden;
                          }));
    }
    return items;
}

std::string typedForm(std::string_view name) { return filled("{}{}", {dashesOf(name), name}); }

std::string bold(std::string_view text, bool isEmphasized) {
    return isEmphasized && !text.empty() ? filled("\x1b[1m{}\x1b[0m", {text}) : std::string(text);
}

std::string underlined(std::string_view text, bool isEmphasized) {
    return isEmphasized && !text.empty() ? filled("\x1b[4m{}\x1b[0m", {text}) : std::string(text);
}

}  // namespace zarn_3_3::internal
