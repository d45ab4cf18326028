#include "modern/item_record.h"

#include <algorithm>
#include <cstddef>
#include <new>

#include "modern/messages.h"
#include "options/option_description.h"
#include "text/filled.h"
#include "zarn/option.h"

namespace zarn_3_3::internal {
namespace {

const char* orEmpty(const char* text) { return text == nullptr ? "" : text; }

// Unlike the lists of the plain interface, with an empty piece behind a last comma.
std::vector<std::string> piecesOf(std::string_view list) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string_view::npos; start = end + 1) {
        end = list.find(',', start);
        pieces.emplace_back(list.substr(start, end - start));
    }
    return pieces;
}

}  // namespace

ItemRecord::ItemRecord(ItemDescription& given)
    : role(given.role),
      type(given.type),
      allNames(orEmpty(given.names)),
      names(piecesOf(allNames)),
      description(given.role == Role::option ? "" : orEmpty(given.description)),
      shownName(orEmpty(given.shownName)),
      environment(orEmpty(given.environment)),
      readVariable(given.readVariable),
      allowed(std::move(given.allowed)),
      defaultValue(std::move(given.defaultValue)),
      least(std::move(given.least)),
      greatest(std::move(given.greatest)),
      checks(std::move(given.checks)),
      target(std::move(given.target)),
      separator(given.separator),
      isRequired(given.isRequired),
      isAlone(given.isAlone),
      showsTarget(given.showsTarget) {
    if (*orEmpty(given.actions) != '\0') {
        actions = piecesOf(given.actions);
    }
    if (showsTarget && (target == nullptr || target->takesMany())) {
        mistake(allNames.c_str(), messages::noVariable);
    }
    if (showsTarget) {
        defaultValue = target->current();
    }
}

bool ItemRecord::needsOwnParse() const {
    return type != vtString || !allowed.empty() || separator != '\0';
}

std::string ItemRecord::called() const {
    if (role == Role::positional) {
        return shownName.empty() ? primaryName() : shownName;
    }
    return typedName(primaryName());
}

void ItemRecord::configure(IOption& item) const {
    if (role == Role::positional) {
        item.positional();
    }
    for (const AllowedValue& each : allowed) {
        if (each.replacement.type() == vtNull) {
            item.allowValue(each.value);
        } else {
            item.allowDeprecatedValue(each.value, each.replacement);
        }
    }
    if (defaultValue.type() != vtNull) {
        item.defaultValue(defaultValue);
    }
    item.tokenize(separator);  // last: allowValue has values cut at ','
    const auto& plain = static_cast<const OptionDescription&>(item);
    const auto isTaken = [&](const AllowedValue& each) {
        return each.replacement.type() == vtNull ||
               plain.deprecatedValues.find(each.value) != plain.deprecatedValues.end();
    };
    const auto replaced = std::count_if(allowed.begin(), allowed.end(), [](const auto& each) {
        return each.replacement.type() != vtNull;
    });
    if (plain.hasDefault != (defaultValue.type() != vtNull) ||
        plain.allowedValues.size() != allowed.size() - static_cast<std::size_t>(replaced) ||
        !std::all_of(allowed.begin(), allowed.end(), isTaken)) {
        throw std::bad_alloc();
    }
}

Value ItemRecord::replaced(const Value& value) const {
    for (const AllowedValue& each : allowed) {
        if (each.replacement.type() != vtNull && each.value == value.value) {
            const bool isText = each.replacement.type() == vtString;
            Value read(value);
            read.value = each.replacement;
            read.text = isText ? each.replacement.get<const char*>() : value.text;
            return read;
        }
    }
    return value;
}

std::string typedName(std::string_view name) {
    return filled("{}{}", {name.size() == 1 ? "-" : "--", name});
}

void requireNames(const ItemRecord& item) {
    const auto refuse = [&](const std::string& what) { mistake(item.allNames.c_str(), what); };
    for (const std::string& name : item.names) {
        if (name.empty()) {
            refuse(messages::nameEmpty);
        }
        if (name[0] == '-' || name.find_first_of(" \t\n\v\f\r=") != std::string::npos) {
            refuse(messages::nameUntypable(name));
        }
        if (std::count(item.names.begin(), item.names.end(), name) > 1) {
            refuse(messages::nameTwice(name));
        }
    }
    if (item.names.size() > 3) {
        refuse(messages::tooManyNames);
    }
    if (item.names.size() == 3 && item.names[2].size() > 2) {
        refuse(messages::thirdNameLong(item.names[2]));
    }
}

void requireDefault(const ItemRecord& item) {
    const bool isText = item.defaultValue.type() == vtString;
    const char* const text = isText ? item.defaultValue.get<const char*>() : "";
    if (item.defaultValue.type() == vtNull || (isText && *text == '\0')) {
        return;
    }
    const bool isAllowed =
        item.allowed.empty() ||
        std::any_of(item.allowed.begin(), item.allowed.end(), [&](const AllowedValue& each) {
            return each.replacement.type() == vtNull && each.value == item.defaultValue;
        });
    if (!isAllowed) {
        mistake(item.allNames.c_str(), messages::defaultNotAllowed);
    }
    const Value value(text, item.defaultValue, 0);
    std::string reason;
    for (const Check* check = item.checks.get(); check != nullptr; check = check->next.get()) {
        // Whether a file exists is no matter of the declaration.
        if (check->isLasting() && !check->holds(value, reason)) {
            mistake(item.allNames.c_str(), messages::defaultRefused(reason));
        }
    }
}

}  // namespace zarn_3_3::internal
