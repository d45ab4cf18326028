#include "text/text_arena.h"

#include <algorithm>

namespace zarn_3_3::internal {

namespace {
constexpr std::size_t largestBlock = 65536;
}

const char* TextArena::keep(std::string_view text) {
    char* kept = take(text.size() + 1);
    *std::copy(text.begin(), text.end(), kept) = '\0';
    return kept;
}

char* TextArena::newBlock(std::size_t size) {
    blocks.emplace_back();
    try {
        blocks.back().reset(new char[size]);
    } catch (...) {
        blocks.pop_back();
        throw;
    }
    return blocks.back().get();
}

char* TextArena::take(std::size_t size) {
    if (size > left) {
        if (size > nextBlockSize / 4) {
            return newBlock(size);  // a large text does not waste the rest of the current block
        }
        next = newBlock(nextBlockSize);
        left = nextBlockSize;
        nextBlockSize = std::min(2 * nextBlockSize, largestBlock);
    }
    char* taken = next;
    next += size;
    left -= size;
    return taken;
}

}  // namespace zarn_3_3::internal
