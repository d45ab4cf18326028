// What can be asked of a vocabulary only when everything is declared: in front of a parse.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

#include "modern/messages.h"
#include "modern/vocabulary.h"
#include "options/registered_option_storage.h"
#include "text/text_table.h"

namespace zarn_3_3::internal {
namespace {

Role roleOf(const OptionDescription& plain) {
    if (plain.kind == kindAction) {
        return Role::action;
    }
    return plain.isPositional ? Role::positional : Role::option;
}

// Spreads what stands side by side.
std::uint32_t hashOf(const void* variable) {
    return static_cast<std::uint32_t>(
        reinterpret_cast<std::uintptr_t>(variable) * 0x9e3779b97f4a7c15 >> 32);
}

}  // namespace

void Vocabulary::settle() {
    takeInPlainItems();
    // What has been looked at stays right, but for variables, which a new item may share.
    if (settledItems_ < items_.size()) {
        requireOwnTargets();
    }
    for (; settledItems_ < items_.size(); ++settledItems_) {
        requireActions(*items_[settledItems_]);
        addDemands(*items_[settledItems_]);
    }
    for (; settledRules_ < rules_.size(); ++settledRules_) {
        settle(rules_[settledRules_]);
    }
    // Late, since most vocabularies have nothing to listen for, and an unheard parse is the
    // fastest.
    if (!isListening_ && watch_.isNeeded()) {
        isListening_ = plain_->addHandler(&watch_);
        if (!isListening_) {
            throw std::bad_alloc();
        }
    }
}

// What the face itself declares has its record already.
void Vocabulary::takeInPlainItems() {
    const OptionList& plainItems = plain_->vocabulary().items();
    for (std::size_t i = items_.size(); i < plainItems.size(); ++i) {
        // So that rules and queries need not know by whom an item was declared.
        auto item = std::make_unique<ItemRecord>();
        item->role = roleOf(plainItems[i]);
        item->type = plainItems[i].type;
        item->separator = plainItems[i].tokenizer;
        item->plain = &plainItems[i];
        item->isPlain = true;
        items_.push_back(std::move(item));
    }
}

void Vocabulary::addDemands(const ItemRecord& item) {
    demands_.checks = demands_.checks || item.isChecked();
    demands_.environment = demands_.environment || *item.extras().environment != '\0';
    demands_.required = demands_.required || item.isRequired;
    demands_.once = demands_.once || item.isOnce;
}

void Vocabulary::requireActions(const ItemRecord& item) const {
    if (item.role == Role::action) {
        return;
    }
    for (const std::string& name : item.plain->tags) {
        const ItemRecord* const action = recordAt(indexOf(name));
        if (action == nullptr || action->role != Role::action || action->primaryName() != name) {
            mistake(item.allNames().c_str(), messages::noSuchAction(name));
        }
    }
}

// The values of two items for one variable would overwrite each other.
void Vocabulary::requireOwnTargets() const {
    // A table, since a tool of a thousand options would feel a look at each pair.
    TextTable owners;
    owners.makeRoom(items_.size());
    for (std::uint32_t i = 0; i < items_.size(); ++i) {
        const ItemRecord& item = *items_[i];
        // Constants are meant to share: what was given last counts.
        if (item.target == nullptr || item.extras().constant.value != nullptr) {
            continue;
        }
        const std::uint32_t owner = owners.findOrAdd(hashOf(item.variable), i, [&](auto other) {
            return items_[other]->variable == item.variable;
        });
        if (owner != i) {
            mistake(item.allNames().c_str(), messages::variableTaken(items_[owner]->allNames()));
        }
    }
}

void Vocabulary::settle(Rule& rule) const {
    rule.items.clear();
    for (const std::string& name : rule.names) {
        rule.items.push_back(&require(name));
    }
}

}  // namespace zarn_3_3::internal
