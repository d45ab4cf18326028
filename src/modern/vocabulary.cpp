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

constexpr std::size_t usualItems = 32;

const char* orEmpty(const char* text) { return text == nullptr ? "" : text; }

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

ItemRecord& Vocabulary::declare(const char* section, ItemDescription* description) {
    // The face has promised that the item is taken, also when one of the next lines throws.
    std::unique_ptr<ItemRecord> item(static_cast<ItemRecord*>(description));
    item->names = orEmpty(item->names);
    item->actions = orEmpty(item->actions);
    item->description = orEmpty(item->description);
    item->shownName = orEmpty(item->shownName);
    showVariable(*item);
    requireNames(*item);
    requireSettings(*item);
    takeInPlainItems();
    // Before the plain declaration, which cannot be taken back.
    items_.push_back(std::move(item));
    try {
        requireSameActions(*items_.back());
        declarePlainly(section, *items_.back());
    } catch (...) {
        items_.pop_back();
        throw;
    }
    return *items_.back();
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

void Vocabulary::declarePlainly(const char* section, ItemRecord& item) {
    if (item.type == vtBool) {
        requireFreeNames(item);  // its "no-" forms are not compared when it is declared
    }
    const RegisteredOptionStorage& registry = plain_->vocabulary();
    const std::size_t index = registry.items().size();
    // Room first, as far as it can be had.
    if (item.role == Role::positional) {
        positionals_.reserve(positionals_.size() + 1);
    }
    IOption& made =
        item.role == Role::action
            ? plain_->action(item.names, item.description, item.type, section)
            : plain_->modifier(item.names, item.actions, item.description, item.type, section);
    // The plain interface refuses in silence. A name is the usual reason.
    if (registry.items().size() == index) {
        requireFreeNames(item);
        throw std::bad_alloc();
    }
    item.configure(made);
    keepTexts(item);
    describe(index, item);
    if (item.role == Role::positional) {
        addPositional(item);
    }
}

// What help shows of the item beyond its plain declaration.
void Vocabulary::describe(std::size_t index, const ItemRecord& item) {
    RegisteredOptionStorage& registry = plain_->vocabulary();
    const bool impliesValue = item.hasOptionalValue();
    impliesValues_ = impliesValues_ || impliesValue;
    registry.expect(index, item.isRequired, !item.takesMany(), impliesValue);
    if (*item.shownName != '\0') {
        registry.nameValue(index, item.shownName);
    }
    if (*item.extras().environment != '\0') {
        registry.nameVariable(index, item.extras().environment);
    }
}

// The author's texts live until the item is declared.
void Vocabulary::keepTexts(ItemRecord& item) {
    // It stays where it is: the list of items never moves them.
    item.plain = &plain_->vocabulary().items().back();
    item.names = "";
    item.actions = "";
    item.description = item.plain->description.data();
    item.shownName = *item.shownName == '\0' ? "" : plain_->keep(item.shownName);
    if (item.hasExtras()) {
        const char*& environment = item.changeableExtras().environment;
        environment = plain_->keep(orEmpty(environment));
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
    if (item.role != Role::positional || positionals_.empty()) {
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
