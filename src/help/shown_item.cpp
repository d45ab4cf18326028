#include "help/shown_item.h"

#include <algorithm>

#include "help/help_renderer.h"
#include "help/messages.h"
#include "options/action_modifiers.h"
#include "text/listed.h"
#include "text/typed_form.h"

namespace zarn_3_3::internal {
namespace {

// Marks of ShownItem::actions, which is equal for options of the same actions. Hidden ones have a
// mark of their own, as they are never named.
constexpr char isApart = '-';
constexpr char isTogether = 'x';
constexpr char isTogetherHidden = 'h';

bool isShort(std::string_view name) { return name.size() == 1; }

std::string_view valueWord(const OptionDescription& item) {
    // No option stands in front of an argument and says what it is.
    if (item.isPositional) {
        return item.primaryName();
    }
    switch (item.type) {
        case vtString:
            return messages::anyText;
        case vtDouble:
            return messages::anyNumber;
        // Also for switches and booleans, whose word nobody sees.
        default:
            return messages::anyInteger;
    }
}

void appendName(std::string& text, const OptionDescription& item, std::string_view name) {
    std::string form = typedForm(name);
    // Every name has its "no-" form: shown with each, it would only lengthen the head.
    if (item.type == vtBool && name == item.primaryName()) {
        form.insert(form.size() - name.size(), messages::eitherForm);
    }
    text.append(bold(form));
}

void appendValue(std::string& text, const ShownItem& shown) {
    // Such a value has to be attached: the next argument is never taken for it.
    if (shown.item->isValueOptional) {
        text.append("[=").append(shown.valueName).append("]");
    } else if (shown.item->type != vtNull && shown.item->type != vtBool) {
        text.append(" ").append(shown.valueName);
    }
}

std::string valuesOf(const OptionDescription& item) {
    std::string values;
    std::size_t left = item.allowedValues.size();
    for (const variant_t& allowed : item.allowedValues) {
        const std::string value = item.toString(allowed);
        // An empty value would leave a hole in the list.
        appendListed(values, value.empty() ? "\"\"" : value, --left, messages::orElse);
    }
    return values;
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

void appendNote(std::string& notes, const char* label, const std::string& about) {
    if (!about.empty()) {
        notes.append(notes.empty() ? "" : "; ").append(label).append(about);
    }
}

// Takes the full stop, which goes behind what is added. An ellipsis stays.
bool takeFullStop(std::string& text) {
    const std::size_t stop = text.find_last_not_of('.') + 1;
    const bool isThere = stop + 1 == text.size();
    text.resize(isThere ? stop : text.size());
    return isThere;
}

}  // namespace

bool ShownItem::hasShortName() const {
    for (const std::string& name : item->names) {
        if (isShort(name)) {
            return !item->isPositional;
        }
    }
    return false;
}

bool ShownItem::goesWith(const ShownItem& action) const {
    return !isAction() && (actions.empty() || actions[action.actionNumber] != isApart);
}

std::string ShownItem::asTyped() const {
    std::string text;
    appendName(text, *item, item->primaryName());
    appendValue(text, *this);
    return text;
}

std::string ShownItem::head() const {
    if (item->isPositional) {
        return bold(valueName);
    }
    std::string text;
    // So that long names stand below each other, behind short ones or the room for one.
    for (const bool takesShort : {true, false}) {
        for (const std::string& name : item->names) {
            if (isShort(name) == takesShort) {
                text.append(text.empty() ? "" : ", ");
                appendName(text, *item, name);
            }
        }
    }
    appendValue(text, *this);
    return text;
}

std::string ShownItem::place(bool isRequired, bool isLast) const {
    std::string text(valueName);
    // Arguments go by their places, and the last item takes all that are left.
    text.append(isLast && !item->takesOneValue ? "..." : "");
    return isRequired ? text : "[" + text + "]";
}

std::string ShownItem::description(const std::string& actionNames) const {
    const std::string values = valuesOf(*item);
    std::string notes;
    appendNote(notes, messages::onlyWith, actionNames);
    appendNote(notes, messages::byDefault, defaultOf(*item));
    appendNote(notes, messages::fromVariable, std::string(variable));
    std::string text(item->description);
    // With nothing behind it the description stays as its author wrote it.
    const bool hasStop = !(values + notes).empty() && takeFullStop(text);
    if (!values.empty()) {
        text.append(text.empty() ? "" : ": ").append(values);
    }
    if (!notes.empty()) {
        text.append(text.empty() ? "(" : " (").append(notes).append(")");
    }
    return text.append(hasStop ? "." : "");
}

// The items are all there from the start, as pointers to actions among them are kept.
ShownItems::ShownItems(const RegisteredOptionStorage& registry) : items_(registry.items().size()) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        ShownItem& shown = items_[i];
        shown.item = &registry.asDeclared(i);
        shown.valueName = registry.valueName(i);
        if (shown.valueName.empty()) {
            shown.valueName = valueWord(*shown.item);
        }
        shown.variable = registry.variableName(i);
        shown.isHidden = isSectionVisible(registry.sectionKey(*shown.item), true);
        if (shown.isAction()) {
            shown.actionNumber = actions_.size();
            actions_.push_back(&shown);
            visibleActions_ += shown.isHidden ? 0 : 1;
        }
    }
    // When all actions are known: an option may be declared in front of its actions.
    for (ShownItem& shown : items_) {
        readActions(shown);
    }
}

void ShownItems::readActions(ShownItem& shown) {
    if (!shown.item->isModifier()) {
        return;
    }
    for (const ShownItem* const action : actions_) {
        // By all names of the action, as the fixed texts of the help have it.
        const bool areTogether = isIntersected(shown.item->tags, action->item->tags);
        shown.actions += !areTogether ? isApart : action->isHidden ? isTogetherHidden : isTogether;
    }
    // Of no action that there is: a check tells the author, and help shows it with those of all.
    if (shown.actions.find_first_not_of(isApart) == std::string::npos) {
        shown.actions.clear();
    } else if (shown.actions.find(isTogether) == std::string::npos) {
        shown.isHidden = true;  // what goes with hidden actions alone would give them away
    }
}

std::string ShownItems::actionNames(const ShownItem& shown, std::string_view lastSeparator) const {
    // Hidden actions neither count nor are named.
    auto left = static_cast<std::size_t>(
        std::count(shown.actions.begin(), shown.actions.end(), isTogether));
    std::string names;
    const bool goesWithAll = left == visibleActions_;
    for (std::size_t i = 0; i < shown.actions.size() && !goesWithAll; ++i) {
        if (shown.actions[i] == isTogether) {
            appendListed(names, typedForm(actions_[i]->item->primaryName()), --left, lastSeparator);
        }
    }
    return names;
}

std::string bold(std::string_view text) {
    return std::string("\x1b[1m").append(text).append("\x1b[0m");
}

}  // namespace zarn_3_3::internal
