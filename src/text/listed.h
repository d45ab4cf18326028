// Lists for people.

#ifndef ZARN_TEXT_LISTED_H
#define ZARN_TEXT_LISTED_H

#include <cstddef>
#include <string>
#include <string_view>

namespace zarn_3_3::internal {

// Appends one of a list, behind which `left` others follow: "a", "a or b", "a, b or c".
inline void appendListed(std::string& list,
                         std::string_view word,
                         std::size_t left,
                         std::string_view lastSeparator) {
    if (!list.empty()) {
        list.append(left == 0 ? lastSeparator : ", ");
    }
    list.append(word);
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_LISTED_H
