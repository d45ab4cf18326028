#include "shown_items.h"

#include <algorithm>

namespace vocabulary {
namespace {

bool haveOneInCommon(const std::vector<std::string>& some, const std::vector<std::string>& others) {
    return std::find_first_of(some.begin(), some.end(), others.begin(), others.end()) != some.end();
}

using Items = std::vector<const Item*>;

bool belongsTo(const Item& item, const Item& action) {
    return item.kind == Kind::modifier && haveOneInCommon(item.tags, action.tags);
}

Items actionsAmong(const std::vector<Item>& all) {
    Items actions;
    for (const Item& item : all) {
        if (item.kind == Kind::action) {
            actions.push_back(&item);
        }
    }
    return actions;
}

// What belongs to hidden actions alone would give them away.
bool isShown(const Item& item, const Items& allActions) {
    bool hasAction = false;
    bool hasShownAction = false;
    for (const Item* const action : allActions) {
        const bool isTogether = belongsTo(item, *action);
        hasAction = hasAction || isTogether;
        hasShownAction = hasShownAction || (isTogether && !action->isHidden);
    }
    const bool canBeGiven = item.isPositional || !item.names.empty();
    return canBeGiven && !item.isHidden && (hasShownAction || !hasAction);
}

}  // namespace

ShownItems::ShownItems(const Description& description) {
    const Items allActions = actionsAmong(description.items);
    for (const Item& item : description.items) {
        if (!isShown(item, allActions)) {
            continue;
        }
        shown_.push_back(&item);
        if (item.kind == Kind::action) {
            actions_.push_back(&item);
        } else if (item.isPositional) {
            places_.push_back(&item);
        }
    }
}

bool ShownItems::goesWith(const Item& item, const Item* action) {
    if (item.kind == Kind::action) {
        return false;
    }
    return action == nullptr || item.kind == Kind::option || belongsTo(item, *action);
}

bool takesValue(const Item& item) {
    return item.type != Type::toggle && item.type != Type::boolean;
}

std::string valueNameOf(const Item& item) {
    if (!takesValue(item) && !item.isPositional) {
        return "";
    }
    if (!item.valueName.empty()) {
        return item.valueName;
    }
    if (item.isPositional && !item.names.empty() && !item.names.front().empty()) {
        return item.names.front();
    }
    switch (item.type) {
        case Type::text:
            return "TEXT";
        case Type::real:
            return "NUMBER";
        default:
            return "INTEGER";
    }
}

}  // namespace vocabulary
