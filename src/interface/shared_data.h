// The block that copies of a value share.

#ifndef ZARN_INTERFACE_SHARED_DATA_H
#define ZARN_INTERFACE_SHARED_DATA_H

#include <atomic>
#include <cstdint>

#include "platform/assertion.h"

namespace plinth2 {

// Stands in front of shared data.
struct DataHeader {
    std::uint64_t size;  // in bytes; a text's terminator counts
    std::atomic<std::int32_t> owners;
};

static_assert(sizeof(DataHeader) == 2 * sizeof(std::uint64_t));

inline DataHeader* headerOf(const void* data) noexcept {
    if (data == nullptr) {
        TROV_2_18::debugAssertionFailed("h != NULL");
        return nullptr;
    }
    return static_cast<DataHeader*>(const_cast<void*>(data)) - 1;
}

}  // namespace plinth2

#endif  // ZARN_INTERFACE_SHARED_DATA_H
