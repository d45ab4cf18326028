#include "options/section_list.h"

#include "text/text_hash.h"

namespace zarn_3_3 {

using namespace internal;

std::uint32_t SectionList::findOrAdd(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::string_view key = text.substr(0, colon);
    if (last_ < sections_.size() && sections_[last_].key == key) {
        return last_;  // most items stand in the section of the one before
    }
    const std::uint32_t hash = TextHash::of(key);
    const std::uint32_t known =
        byKey_.find(hash, [&](std::uint32_t number) { return sections_[number].key == key; });
    if (known != TextTable::none) {
        last_ = known;
        return known;
    }
    const bool hasTitle = colon != std::string_view::npos;
    const std::string_view title = hasTitle ? text.substr(colon + 1) : std::string_view();
    // Room comes first: a section that stands in the list without being found would be there twice.
    byKey_.makeRoom(1);
    sections_.push_back({std::string(key), std::string(title)});
    last_ = static_cast<std::uint32_t>(sections_.size() - 1);
    byKey_.add(hash, last_);
    return last_;
}

}  // namespace zarn_3_3
