// The sections of the help.

#ifndef ZARN_OPTIONS_SECTION_LIST_H
#define ZARN_OPTIONS_SECTION_LIST_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/text_table.h"

namespace zarn_3_3 {

struct Section {
    std::string key;
    std::string title;
};

// In the order of their first mention; an item's `section` counts in it.
class SectionList {
public:
    std::size_t size() const { return sections_.size(); }
    const Section& operator[](std::size_t index) const { return sections_[index]; }

    // The index of the section that `text`, "key:Title" or the key alone, names. The title given
    // first for a key stays. Throws std::bad_alloc and changes nothing then.
    std::uint32_t findOrAdd(std::string_view text);

private:
    std::vector<Section> sections_;
    internal::TextTable byKey_;
    std::uint32_t last_ = 0;  // the one mentioned last
};

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_SECTION_LIST_H
