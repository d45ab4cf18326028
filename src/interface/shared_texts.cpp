#include "interface/shared_texts.h"

#include <cstring>
#include <new>

#include "interface/owned_text.h"
#include "interface/shared_data.h"

namespace plinth2 {
namespace {

// With what an allocator puts in front they fill a page at most. The first is for the few texts of
// a small command line.
constexpr std::size_t smallestBlock = 512 - 16;
constexpr std::size_t largestBlock = 4096 - 16;

// A count that no block reaches: whoever adds texts stands for all that might still come, and so
// need not count each.
constexpr std::int32_t mostTexts = largestBlock / sizeof(DataHeader);

constexpr std::size_t aligned(std::size_t size) {
    return (size + alignof(DataHeader) - 1) / alignof(DataHeader) * alignof(DataHeader);
}

}  // namespace

variant_t SharedTexts::keep(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    const std::size_t needed = aligned(sizeof(DataHeader) + text.size() + 1);
    if (needed > size_ - used_) {
        if (needed > largestBlock / 4) {
            return ownedText(text);  // the rest of the block is not wasted
        }
        open();
    }
    char* const at = reinterpret_cast<char*>(block_) + used_;
    auto* const header =
        new (at) DataHeader{text.size() + 1, {1}, static_cast<std::uint32_t>(used_)};
    char* const copy = reinterpret_cast<char*>(header + 1);
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    used_ += needed;
    ++texts_;
    return {vtString, copy};
}

void SharedTexts::open() {
    // The new one first: without memory, the one that is open goes on as it was.
    const std::size_t size = size_ == 0 ? smallestBlock : largestBlock;
    auto* const opened = new (::operator new(size)) TextBlock{{mostTexts}};
    close();
    block_ = opened;
    size_ = size;
    used_ = aligned(sizeof(TextBlock));
    texts_ = 0;
}

void SharedTexts::close() noexcept {
    // Of those that it stood for, what never came.
    if (block_ != nullptr) {
        releaseTexts(block_, mostTexts - texts_);
    }
}

}  // namespace plinth2
