#include "support/failing_new.h"

#include <cstdlib>
#include <new>

// To malloc, so that the sanitizers still see every block.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (!memory.isSpared && memory.strikes()) {
        return nullptr;
    }
    ++memory.blocks;
    memory.bytes += size;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
    void* const block = operator new(size, std::nothrow);
    return block != nullptr ? block : throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
    memory.returned += block != nullptr ? 1 : 0;
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

// The sanitizers bring forms for arrays of their own, which do not call those above.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return operator new(size, std::nothrow);
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete[](void* block) noexcept { operator delete(block); }
void operator delete[](void* block, std::size_t) noexcept { operator delete(block); }
