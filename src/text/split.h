// Lists in one text.

#ifndef ZARN_TEXT_SPLIT_H
#define ZARN_TEXT_SPLIT_H

#include <cstddef>
#include <string_view>

#include "text/status.h"

namespace zarn_3_3 {

// Appends the pieces of `text` between commas to `out`, which has an insert at its end, of texts or
// of views into `text`. Empty pieces count, but for one behind the last comma.
template <typename Container>
result_t split(std::string_view text, Container& out) {
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        out.insert(out.end(), typename Container::value_type(text.substr(0, comma)));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return resultSuccess;
}

}  // namespace zarn_3_3

#endif  // ZARN_TEXT_SPLIT_H
