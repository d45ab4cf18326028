#include "support/failing_new.h"

#include <cstdlib>
#include <new>

namespace {

thread_local Allocated total{};
thread_local long left = 0;  // allocations up to the one that fails; 0: none will
thread_local bool isLasting = false;
thread_local bool hasStruck = false;

bool strikes() noexcept {
    if (left == 0 || --left > 0) {
        return false;
    }
    hasStruck = true;
    left = isLasting ? 1 : 0;
    return true;
}

// To malloc, so that the sanitizers still see every block.
void* allocate(std::size_t size) noexcept {
    if (strikes()) {
        return nullptr;
    }
    ++total.blocks;
    total.bytes += size;
    return std::malloc(size == 0 ? 1 : size);
}

void* allocateOrThrow(std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

}  // namespace

FailingNew::FailingNew(long countdown, Outage outage) {
    left = countdown;
    isLasting = outage == Outage::lasting;
    hasStruck = false;
}

FailingNew::~FailingNew() { left = 0; }

bool FailingNew::struck() const { return hasStruck; }

Allocated allocated() { return total; }

void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { std::free(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { std::free(block); }
