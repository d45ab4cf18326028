#include "options/name_index.h"

#include <algorithm>
#include <string>

namespace zarn_3_3::internal {
namespace {

constexpr std::uint32_t noItem = 0xffffffff;

std::size_t indexOf(std::uint32_t item) { return item == noItem ? NameIndex::none : item; }

}  // namespace

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
    entry.namedItem = std::min(entry.namedItem, itemIndex);
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

std::size_t NameIndex::firstNamed(std::string_view name) const {
    const std::uint32_t number = texts.find(name);
    return number == KeptTexts::none ? none : indexOf(entries[number].namedItem);
}

std::size_t NameIndex::first(std::string_view nameOrNoForm) const {
    const std::uint32_t number = texts.find(nameOrNoForm);
    return number == KeptTexts::none ? none : entries[number].item;
}

}  // namespace zarn_3_3::internal
