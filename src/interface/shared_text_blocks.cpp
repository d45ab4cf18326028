// How the blocks begin and end that texts share.

#include <algorithm>
#include <new>

#include "interface/shared_data.h"
#include "interface/shared_texts.h"

namespace plinth2 {
namespace {

// For the few texts of a small command line, with what an allocator puts in front.
constexpr std::size_t smallestBlock = 512 - 16;

// What caches hold, about, in the largest blocks. With many series it is more: each may leave most
// of its first block empty.
constexpr std::size_t commonBlocks = 128;

// A count that no block reaches: whoever adds texts stands for all that might still come, and so
// need not count each.
constexpr std::int32_t mostTexts = 4096 / sizeof(DataHeader);

// The texts stand behind the count.
constexpr std::size_t firstPlace = alignof(DataHeader);
static_assert(sizeof(TextBlock) <= firstPlace);

}  // namespace

SharedTexts::~SharedTexts() {
    close(together_);
    if (apart_ != nullptr) {
        std::for_each(apart_.get(), apart_.get() + allSeries_, close);
    }
}

void SharedTexts::openNext() {
    if (apart_ == nullptr && blocks_ >= commonBlocks + 2 * allSeries_) {
        apart_ = std::make_unique<Open[]>(allSeries_);
    }
    // The new one first: without memory, the one that is open goes on as it was.
    const std::size_t size = open_->size == 0 ? smallestBlock : largestBlock;
    auto* const opened = new (::operator new(size)) TextBlock{{mostTexts}};
    close(*open_);
    *open_ = {opened, firstPlace, size, 0};
    ++blocks_;
}

void SharedTexts::close(const Open& open) noexcept {
    // Of those that it stood for, what never came.
    if (open.block != nullptr) {
        releaseTexts(open.block, mostTexts - open.texts);
    }
}

}  // namespace plinth2
