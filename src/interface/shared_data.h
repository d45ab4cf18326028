// The block that copies of a value share.

#ifndef ZARN_INTERFACE_SHARED_DATA_H
#define ZARN_INTERFACE_SHARED_DATA_H

#include <atomic>
#include <cstdint>
#include <new>

#include "interface/sync.h"
#include "platform/assertion.h"

namespace plinth2 {

// Stands in front of shared data.
struct DataHeader {
    std::uint64_t size;  // in bytes; a text's terminator counts
    std::atomic<std::int32_t> owners;
    std::uint32_t offset;  // from the start of the block; 0: the data has one for itself
};

static_assert(sizeof(DataHeader) == 2 * sizeof(std::uint64_t));

inline DataHeader* headerOf(const void* data) noexcept {
    if (data == nullptr) {
        TROV_2_18::debugAssertionFailed("h != NULL");
        return nullptr;
    }
    return static_cast<DataHeader*>(const_cast<void*>(data)) - 1;
}

// Stands in front of a block that many texts share.
struct TextBlock {
    std::atomic<std::int32_t> texts;  // that have owners
};

inline void releaseTexts(TextBlock* block, std::int32_t count) noexcept {
    if (sync_sub(block->texts, count) == 0) {
        block->~TextBlock();
        ::operator delete(block);
    }
}

// Of data that nobody owns any more.
inline void freeData(DataHeader* header) noexcept {
    const std::uint32_t offset = header->offset;
    header->~DataHeader();
    if (offset == 0) {
        ::operator delete(header);
    } else {
        releaseTexts(reinterpret_cast<TextBlock*>(reinterpret_cast<char*>(header) - offset), 1);
    }
}

}  // namespace plinth2

#endif  // ZARN_INTERFACE_SHARED_DATA_H
