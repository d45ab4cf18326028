// Sorting what is short or sorted seldom.

#ifndef ZARN_TEXT_HEAP_SORT_H
#define ZARN_TEXT_HEAP_SORT_H

#include <algorithm>

namespace zarn_3_3::internal {

// As std::sort, in a third of the code for each kind of element.
template <typename Range, typename IsLess>
void heapSort(Range& range, IsLess isLess) {
    std::make_heap(range.begin(), range.end(), isLess);
    std::sort_heap(range.begin(), range.end(), isLess);
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_HEAP_SORT_H
