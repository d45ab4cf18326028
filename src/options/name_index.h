// Finds items by name and by "no-" form.

#ifndef ZARN_OPTIONS_NAME_INDEX_H
#define ZARN_OPTIONS_NAME_INDEX_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

#include "options/option_list.h"
#include "text/kept_texts.h"

namespace zarn_3_3::internal {

constexpr std::string_view noPrefix = "no-";

// What a user can type in full: the names, and the "no-" forms of booleans. Each is held once, in
// the order of the items and of their names, a name before its "no-" form.
//
// Items are only ever added, and of those there only the last can get further names, so catching up
// costs no more than the names that are new.
class NameIndex {
public:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    bool isUpToDate(const OptionList& options) const {
        return itemsTaken_ == options.size() &&
               (options.empty() || namesTaken_ == options.back().names.size());
    }

    // Takes in the names that were declared since. Throws std::bad_alloc; what was taken in stays.
    void catchUp(const OptionList& options);

    // Whether isWanted(item) holds for one of the items that have this name. `item` is an index.
    template <typename IsWanted>
    bool isAnyNamed(std::string_view name, IsWanted isWanted) const {
        const std::uint32_t number = texts_.find(name);
        if (number == KeptTexts::none || entries_[number].namedItem == noItem) {
            return false;
        }
        if (isWanted(entries_[number].namedItem)) {
            return true;
        }
        const auto further = furtherItems_.find(number);
        return further != furtherItems_.end() &&
               std::any_of(further->second.begin(), further->second.end(), isWanted);
    }

    // The first item that has this name, or is a boolean of which it is the "no-" form.
    std::size_t first(std::string_view nameOrNoForm) const;

    // All names and "no-" forms; a form is meant by its number there.
    const KeptTexts& forms() const { return texts_; }

    std::size_t firstWithForm(std::uint32_t number) const { return entries_[number].item; }

private:
    // Of a form: the first item that it stands for, and the first that has it as its name.
    struct Entry {
        std::uint32_t item;
        std::uint32_t namedItem;
    };

    static constexpr std::uint32_t noItem = 0xffffffff;

    void add(const OptionDescription& item, std::uint32_t itemIndex, std::string_view name);
    Entry& findOrAdd(std::string_view form, std::uint32_t itemIndex);

    std::size_t itemsTaken_ = 0;  // the last of them perhaps with further names to come
    std::size_t namesTaken_ = 0;  // of that last item
    KeptTexts texts_;
    std::vector<Entry> entries_;  // by the number of the text

    // Behind the first item with a name. Only synonyms give one to several.
    std::map<std::uint32_t, std::vector<std::uint32_t>> furtherItems_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_NAME_INDEX_H
