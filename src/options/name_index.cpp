#include "options/name_index.h"

#include <string>

namespace zarn_3_3::internal {

void NameIndex::catchUp(const OptionList& options) {
    for (;;) {
        if (itemsTaken > 0) {
            const OptionDescription& last = options[itemsTaken - 1];
            for (; namesTaken < last.names.size(); ++namesTaken) {
                // A name that could not be added is added again the next time.
                add(last, static_cast<std::uint32_t>(itemsTaken - 1), last.names[namesTaken]);
            }
        }
        if (itemsTaken == options.size()) {
            return;
        }
        ++itemsTaken;
        namesTaken = 0;
    }
}

void NameIndex::add(const OptionDescription& item, std::uint32_t itemIndex, std::string_view name) {
    Entry& entry = findOrAdd(name, itemIndex);
    if (entry.namedItem == noItem) {
        entry.namedItem = itemIndex;
    } else if (entry.namedItem != itemIndex) {
        furtherItems[texts.find(name)].push_back(itemIndex);
    }
    if (item.type == vtBool) {
        findOrAdd(std::string(noPrefix).append(name), itemIndex);
    }
}

// Items come in ascending order: the first that a form stands for is there before the others.
NameIndex::Entry& NameIndex::findOrAdd(std::string_view form, std::uint32_t itemIndex) {
    const std::uint32_t number = texts.keep(form);
    if (number == entries.size()) {  // new, or kept when there was no memory for its entry
        entries.push_back({itemIndex, noItem});
    }
    return entries[number];
}

std::size_t NameIndex::first(std::string_view nameOrNoForm) const {
    const std::uint32_t number = texts.find(nameOrNoForm);
    return number == KeptTexts::none ? none : entries[number].item;
}

}  // namespace zarn_3_3::internal
