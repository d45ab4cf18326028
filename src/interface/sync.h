// Counting the owners of shared data.

#ifndef ZARN_INTERFACE_SYNC_H
#define ZARN_INTERFACE_SYNC_H

#include <atomic>
#include <cstdint>
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace plinth2 {

// Whether the process has one thread for certain: locked instructions, the larger part of the price
// of a copy, can then be spared.
inline bool isSingleThreaded() noexcept {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded != 0;
#else
    return false;
#endif
}

// Who adds an owner is one already, so the data cannot go away meanwhile: no order is needed.
inline void sync_inc(std::atomic<std::int32_t>& count) noexcept {
    if (isSingleThreaded()) {
        count.store(count.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    } else {
        count.fetch_add(1, std::memory_order_relaxed);
    }
}

// Takes away as many owners as the caller stands for, and returns the new count. At zero,
// everything that the other owners did has happened before.
inline std::int32_t sync_sub(std::atomic<std::int32_t>& count, std::int32_t owners) noexcept {
    // Who stands for all that are left is alone too, and nobody else can become an owner.
    const std::int32_t before = count.load(std::memory_order_acquire);
    if (before == owners || isSingleThreaded()) {
        count.store(before - owners, std::memory_order_relaxed);
        return before - owners;
    }
    return count.fetch_sub(owners, std::memory_order_acq_rel) - owners;
}

inline std::int32_t sync_dec(std::atomic<std::int32_t>& count) noexcept {
    return sync_sub(count, 1);
}

}  // namespace plinth2

#endif  // ZARN_INTERFACE_SYNC_H
