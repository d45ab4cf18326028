// The ways to find items.

#ifndef ZARN_OPTIONS_ITEM_INDEXES_H
#define ZARN_OPTIONS_ITEM_INDEXES_H

#include <cstddef>
#include <memory>
#include <string_view>

#include "options/name_index.h"
#include "options/option_list.h"
#include "options/prefix_index.h"

namespace zarn_3_3::internal {

// Each index takes in what was declared since it was asked last: a vocabulary is declared in full
// before anything is looked up, and most runs of a tool look up little of it. All are asked with
// the same items, to which some may have been added.
class ItemIndexes {
public:
    // Throws std::bad_alloc.
    const NameIndex& names(const OptionList& items) {
        if (!names_.isUpToDate(items)) {
            names_.catchUp(items);
        }
        return names_;
    }

    // What `beginning` can stand for, among the forms of the names. Throws std::bad_alloc.
    PrefixIndex::Found findBeginning(std::string_view beginning, const OptionList& items);

    // The index of the first positional item, or NameIndex::none. To be asked before an item is
    // added: only the last one is looked at, which may still become positional until then.
    std::size_t firstPositional(const OptionList& items) {
        if (positional_ == NameIndex::none && !items.empty() && items.back().isPositional) {
            positional_ = items.size() - 1;
        }
        return positional_;
    }

private:
    NameIndex names_;
    std::unique_ptr<PrefixIndex> beginnings_;  // null until something is abbreviated
    std::size_t positional_ = NameIndex::none;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_ITEM_INDEXES_H
