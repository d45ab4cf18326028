// Room in vectors.

#ifndef ZARN_TEXT_MAKE_ROOM_H
#define ZARN_TEXT_MAKE_ROOM_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zarn_3_3::internal {

// Makes room as push_back would, so that a vector with `size` elements in all need not grow; for
// `least` from the start, where there are nearly always so many.
template <typename Element>
void makeRoom(std::vector<Element>& elements, std::size_t size, std::size_t least = 1) {
    if (size > elements.capacity()) {
        elements.reserve(std::max({size, 2 * elements.capacity(), least}));
    }
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_MAKE_ROOM_H
