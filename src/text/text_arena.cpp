#include "text/text_arena.h"

#include <algorithm>

namespace zarn_3_3::internal {

namespace {
// Blocks double up to this size: the few texts of a small tool take little, many texts few blocks.
constexpr std::size_t largestBlock = 65536;
}  // namespace

const char* TextArena::keep(std::string_view text) {
    char* kept = take(text.size() + 1);
    *std::copy(text.begin(), text.end(), kept) = '\0';
    return kept;
}

char* TextArena::newBlock(std::size_t size) {
    // The place in the list first: a block for which the list has no room would be lost.
    blocks_.emplace_back();
    try {
        blocks_.back().reset(new char[size]);
    } catch (...) {
        blocks_.pop_back();
        throw;
    }
    return blocks_.back().get();
}

char* TextArena::take(std::size_t size) {
    if (size > left_) {
        if (size > nextBlockSize_ / 4) {
            return newBlock(size);  // a large text does not waste the rest of the current block
        }
        next_ = newBlock(nextBlockSize_);
        left_ = nextBlockSize_;
        nextBlockSize_ = std::min(2 * nextBlockSize_, largestBlock);
    }
    char* taken = next_;
    next_ += size;
    left_ -= size;
    return taken;
}

}  // namespace zarn_3_3::internal
