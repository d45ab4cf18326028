#include "options/name_index.h"

#include <algorithm>

namespace zarn_3_3::internal {

void NameIndex::catchUp(const OptionList& options) {
    walk.catchUp(options, [&](NamePlace place) { add(place); });
}

void NameIndex::add(NamePlace place) {
    const std::string& name = place.text();
    const std::uint32_t booleanItem =
        place.item->type == vtBool ? place.itemIndex : TextTable::none;
    const std::uint32_t hash = TextTable::hash(name);
    const std::uint32_t known = find(hash, name);
    if (known != TextTable::none) {
        entries[known].booleanItem = std::min(entries[known].booleanItem, booleanItem);
        return;
    }
    table.makeRoom();
    entries.push_back({place, booleanItem});
    table.add(hash, static_cast<std::uint32_t>(entries.size() - 1));
}

std::uint32_t NameIndex::find(std::uint32_t hash, std::string_view name) const {
    return table.find(hash,
                      [&](std::uint32_t entry) { return entries[entry].place.text() == name; });
}

std::size_t NameIndex::firstNamed(std::string_view name) const {
    const std::uint32_t entry = find(TextTable::hash(name), name);
    return entry == TextTable::none ? none : entries[entry].place.itemIndex;
}

std::size_t NameIndex::first(std::string_view nameOrNoForm) const {
    const std::size_t named = firstNamed(nameOrNoForm);
    if (nameOrNoForm.substr(0, noPrefix.size()) != noPrefix) {
        return named;
    }
    const std::string_view stem = nameOrNoForm.substr(noPrefix.size());
    const std::uint32_t negated = find(TextTable::hash(stem), stem);
    if (negated == TextTable::none || entries[negated].booleanItem == TextTable::none) {
        return named;
    }
    return std::min<std::size_t>(named, entries[negated].booleanItem);
}

}  // namespace zarn_3_3::internal
