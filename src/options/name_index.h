// Finds items by name and by "no-" form.

#ifndef ZARN_OPTIONS_NAME_INDEX_H
#define ZARN_OPTIONS_NAME_INDEX_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "options/name_walk.h"
#include "options/text_table.h"

namespace zarn_3_3::internal {

constexpr std::string_view noPrefix = "no-";

class NameIndex {
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    bool isUpToDate(const OptionList& options) const { return walk.isUpToDate(options); }

    // Takes in the names that were declared since. Throws std::bad_alloc; what was taken in stays.
    void catchUp(const OptionList& options);

    // The first item that has this name.
    std::size_t firstNamed(std::string_view name) const;

    // The first item that has this name, or is a boolean of which it is the "no-" form.
    std::size_t first(std::string_view nameOrNoForm) const;

private:
    // A distinct name, where it stands first, and the first boolean item that has it.
    struct Entry {
        NamePlace place;
        std::uint32_t booleanItem;
    };

    void add(NamePlace place);
    std::uint32_t find(std::uint32_t hash, std::string_view name) const;

    NameWalk walk;
    std::vector<Entry> entries;
    TextTable table;  // name to entry
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_NAME_INDEX_H
