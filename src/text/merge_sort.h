// Sorting that keeps equals in order.

#ifndef ZARN_TEXT_MERGE_SORT_H
#define ZARN_TEXT_MERGE_SORT_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zarn_3_3::internal {

// As std::stable_sort, in a fifth of its code; as cheap where much is in order already.
template <typename T, typename IsLess>
void mergeSort(std::vector<T>& items, IsLess isLess) {
    std::vector<T> merged(items.size());
    for (std::size_t width = 1; width < items.size(); width *= 2) {
        for (std::size_t i = 0; i < items.size(); i += 2 * width) {
            const auto first = items.begin() + static_cast<std::ptrdiff_t>(i);
            const auto left = static_cast<std::size_t>(items.end() - first);
            const auto middle = first + static_cast<std::ptrdiff_t>(std::min(width, left));
            const auto last = first + static_cast<std::ptrdiff_t>(std::min(2 * width, left));
            const auto out = merged.begin() + static_cast<std::ptrdiff_t>(i);
            if (middle == last || !isLess(*middle, *(middle - 1))) {
                std::copy(first, last, out);  // in order already, as names often are declared
            } else {
                std::merge(first, middle, middle, last, out, isLess);
            }
        }
        items.swap(merged);
    }
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_MERGE_SORT_H
