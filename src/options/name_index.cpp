#include "options/name_index.h"

#include <string>

#include "text/make_room.h"

namespace zarn_3_3::internal {

void NameIndex::catchUp(const OptionList& options) {
    // The item taken in last comes first again: it may have got synonyms since, up to the moment at
    // which the next one was declared. What is taken in is counted name by name, so that a failure
    // in between loses nothing and repeats nothing but the name that failed.
    for (;;) {
        if (itemsTaken_ > 0) {
            const OptionDescription& last = options[itemsTaken_ - 1];
            for (; namesTaken_ < last.names.size(); ++namesTaken_) {
                add(last, static_cast<std::uint32_t>(itemsTaken_ - 1), last.names[namesTaken_]);
            }
        }
        if (itemsTaken_ == options.size()) {
            return;
        }
        ++itemsTaken_;
        namesTaken_ = 0;
    }
}

void NameIndex::add(const OptionDescription& item, std::uint32_t itemIndex, std::string_view name) {
    // Only the first item with a name is found by it, but a question about kinds or sections wants
    // to hear of all of them. A form that was a "no-" form alone until now may become a name.
    Entry& entry = findOrAdd(name, itemIndex);
    if (entry.namedItem == noItem) {
        entry.namedItem = itemIndex;
    } else if (entry.namedItem != itemIndex) {
        furtherItems_[texts_.find(name)].push_back(itemIndex);
    }
    if (item.type == vtBool) {
        findOrAdd(std::string(noPrefix).append(name), itemIndex);
    }
}

// Items come in ascending order: the first that a form stands for is there before the others.
NameIndex::Entry& NameIndex::findOrAdd(std::string_view form, std::uint32_t itemIndex) {
    const std::uint32_t number = texts_.keep(form);
    if (number == entries_.size()) {  // new, or kept when there was no memory for its entry
        makeRoom(entries_, entries_.size() + 1, 16);
        entries_.push_back({itemIndex, noItem});
    }
    return entries_[number];
}

std::size_t NameIndex::first(std::string_view nameOrNoForm) const {
    const std::uint32_t number = texts_.find(nameOrNoForm);
    return number == KeptTexts::none ? none : entries_[number].item;
}

}  // namespace zarn_3_3::internal
