#include "modern/vocabulary.h"

#include <algorithm>
#include <new>
#include <set>
#include <utility>

#include "modern/messages.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_reading.h"
#include "text/filled.h"
#include "text/split.h"
#include "zarn/option.h"

namespace zarn_3_3::internal {
namespace {

constexpr std::size_t usualItems = 64;

}  // namespace

Vocabulary::Vocabulary(const Tool& tool, int flags)
    : tool_(tool), flags_(flags), plain_(std::make_unique<BasicParser>(flags)), watch_(*this) {
    items_.reserve(usualItems);
}

void Vocabulary::release() noexcept {
    if (--owners_ == 0) {
        delete this;
    }
}

// As its default.
void Vocabulary::showVariable(ItemRecord& item) const {
    const bool isOffered = showsDefaults_ && !item.isRequired && !item.takesMany() &&
                           item.extras().defaultValue.type() == vtNull;
    if (item.target == nullptr || !(isOffered || item.showsTarget)) {
        return;
    }
    const variant_t shown = item.target->current(item.variable);
    // No default, and a query would look for one.
    if (shown.type() == vtString && *get_variant_value(shown, "x") == '\0') {
        return;
    }
    // One that was asked for by name and is refused is a mistake, told below; one that is only
    // offered is let go.
    if (item.showsTarget || (shown.type() != vtNull && whyRefused(item, shown).empty())) {
        item.changeableExtras().defaultValue = shown;
        item.showsTarget = true;
    }
}

// The first item takes the arguments of all of them, so of several it has to take any text; what
// each wants is seen to when an argument has found its item.
void Vocabulary::addPositional(const ItemRecord& item) {
    // With the second, so that a single item is parsed as what it is.
    if (positionals_.size() == 1) {
        RegisteredOptionStorage& registry = plain_->vocabulary();
        const std::size_t first = indexOf(positionals_[0]->primaryName());
        registry.takeAnyText(first);
        // Checks and values go by what its author declared.
        items_[first]->plain = &registry.asDeclared(first);
    }
    positionals_.push_back(&item);
}

void Vocabulary::requireFreeNames(const ItemRecord& item) const {
    std::vector<std::string> names;
    split(item.names, names);
    for (const std::string& name : names) {
        requireFree(item, name);
        if (item.type == vtBool) {
            requireFree(item, filled("{}{}", {noPrefix, name}));
        }
    }
}

void Vocabulary::requireFree(const ItemRecord& item, std::string_view form) const {
    const std::size_t index = indexOf(form);
    if (index != NameIndex::none) {
        // Those that were declared plainly have their records by now.
        mistake(item.names, messages::nameTaken(form, recordAt(index)->allNames()));
    }
}

// All arguments are stored under the first positional item, whose actions are looked at.
void Vocabulary::requireSameActions(const ItemRecord& item) const {
    if (positionals_.empty()) {
        return;
    }
    std::set<std::string> actions;
    split(item.actions, actions);
    if (actions != positionals_.front()->plain->tags) {
        mistake(item.names, messages::otherActions);
    }
}

std::size_t Vocabulary::indexOf(std::string_view form) const {
    return plain_->vocabulary().names().first(form);
}

ItemRecord* Vocabulary::recordAt(std::size_t index) const {
    return index < items_.size() ? items_[index].get() : nullptr;
}

const ItemRecord* Vocabulary::find(std::string_view name) const {
    const ItemRecord* const item = recordAt(indexOf(name));
    // The "no-" form of a boolean finds the item too, and is no name of it.
    return item != nullptr && isName(name) ? item : nullptr;
}

bool Vocabulary::isName(std::string_view name) const {
    return plain_->vocabulary().names().isAnyNamed(name, [](std::size_t) { return true; });
}

const ItemRecord& Vocabulary::require(std::string_view name) const {
    const ItemRecord* const item = find(name);
    if (item == nullptr) {
        mistake(std::string(name).c_str(), messages::noSuchOption);
    }
    return *item;
}

const ItemRecord* Vocabulary::resolve(std::string_view text) const {
    std::size_t index = NameIndex::none;
    std::string_view form;
    const Matches matches = resolveName(text, plain_->vocabulary(), index, form);
    return matches == Matches::one ? recordAt(index) : nullptr;
}

bool Vocabulary::isBeginning(std::string_view text) const {
    return indexOf(text) != NameIndex::none ||
           plain_->vocabulary().findBeginning(text).first != KeptTexts::none;
}

}  // namespace zarn_3_3::internal
