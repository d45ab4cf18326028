#include "counting_new.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace zarn_benchmarks {

namespace {

HeapCounts counts;

// Room for the size in front of each block, as wide as the alignment that new promises.
constexpr std::size_t header = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

void* allocate(std::size_t size) noexcept {
    auto* block = static_cast<char*>(std::malloc(size + header));
    if (block == nullptr) {
        return nullptr;
    }
    *reinterpret_cast<std::size_t*>(block) = size;
    ++counts.allocations;
    counts.liveBytes += size;
    counts.peakBytes = std::max(counts.peakBytes, counts.liveBytes);
    return block + header;
}

void release(void* pointer) noexcept {
    if (pointer == nullptr) {
        return;
    }
    char* block = static_cast<char*>(pointer) - header;
    counts.liveBytes -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

}  // namespace

HeapCounts heapCounts() { return counts; }

void resetPeak() { counts.peakBytes = counts.liveBytes; }

}  // namespace zarn_benchmarks

void* operator new(std::size_t size) {
    void* pointer = zarn_benchmarks::allocate(size);
    if (pointer == nullptr) {
        throw std::bad_alloc();
    }
    return pointer;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return zarn_benchmarks::allocate(size);
}

void operator delete(void* pointer) noexcept { zarn_benchmarks::release(pointer); }
void operator delete(void* pointer, std::size_t) noexcept { zarn_benchmarks::release(pointer); }
