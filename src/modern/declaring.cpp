// How an item comes into a vocabulary: the part of it that each item of each tool goes through.

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "modern/messages.h"
#include "modern/vocabulary.h"
#include "options/registered_option_storage.h"

namespace zarn_3_3::internal {
namespace {

const char* notNull(const char* text) { return text == nullptr ? "" : text; }

// Whether the name, a piece of the list, stands in front of itself there.
bool isRepeated(std::string_view name, const char* list) {
    while (list != name.data()) {
        const char* const comma = std::strchr(list, ',');
        if (name == std::string_view(list, static_cast<std::size_t>(comma - list))) {
            return true;
        }
        list = comma + 1;
    }
    return false;
}

// Throws std::logic_error when the author has made a mistake in them, apart from those of others.
void requireNames(const ItemRecord& item) {
    const auto refuse = [&](const std::string& what) { mistake(item.names, what); };
    // The end of the list, or what the plain interface takes and no command line ever reaches.
    const char* const end = item.names + std::strcspn(item.names, "= \t\n\v\f\r");
    std::string_view name;
    std::size_t count = 0;
    // Unlike the lists of the plain interface, with an empty piece behind a last comma.
    for (const char* next = item.names; next != nullptr; ++count) {
        if (count == GivenNames::most) {
            refuse(messages::tooManyNames);
        }
        const std::string_view rest(next, static_cast<std::size_t>(end - next));
        const std::size_t comma = rest.find(',');
        const bool isLast = comma == std::string_view::npos;
        if (*next == '-' || (isLast && *end != '\0')) {
            refuse(messages::nameUntypable(std::string_view(next, std::strcspn(next, ","))));
        }
        name = rest.substr(0, comma);
        if (name.empty()) {
            refuse(messages::nameEmpty);
        }
        // The plain interface looks at the names of other items only.
        if (isRepeated(name, item.names)) {
            refuse(messages::nameTwice(name));
        }
        next = isLast ? nullptr : next + comma + 1;
    }
    // It would be refused there too, without a word.
    if (count == GivenNames::most && name.size() > GivenNames::longestThird) {
        refuse(messages::thirdNameLong(name));
    }
}

}  // namespace

ItemRecord& Vocabulary::declare(const char* section, ItemDescription* description) {
    // The face has promised that the item is taken, also when one of the next lines throws.
    std::unique_ptr<ItemRecord> item(static_cast<ItemRecord*>(description));
    item->names = notNull(item->names);
    item->actions = notNull(item->actions);
    item->description = notNull(item->description);
    item->shownName = notNull(item->shownName);
    if (showsDefaults_ || item->showsTarget) {
        showVariable(*item);
    }
    requireNames(*item);
    if (item->hasExtras() || item->showsTarget) {
        requireSettings(*item);
    }
    if (items_.size() != plain_->vocabulary().items().size()) {  // they are mixed hardly ever
        takeInPlainItems();
    }
    // Before the plain declaration, which cannot be taken back.
    items_.push_back(std::move(item));
    try {
        declarePlainly(section, *items_.back());
    } catch (...) {
        items_.pop_back();
        throw;
    }
    return *items_.back();
}

void Vocabulary::declarePlainly(const char* section, ItemRecord& item) {
    if (item.type == vtBool) {
        requireFreeNames(item);  // its "no-" forms are not compared when it is declared
    }
    const RegisteredOptionStorage& registry = plain_->vocabulary();
    const std::size_t index = registry.items().size();
    // Room first, as far as it can be had.
    if (item.role == Role::positional) {
        requireSameActions(item);
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
        environment = plain_->keep(notNull(environment));
    }
}

}  // namespace zarn_3_3::internal
