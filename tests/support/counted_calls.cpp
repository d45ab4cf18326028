#include "support/counted_calls.h"

#include <cstring>

thread_local std::size_t memoryCalls = 0;

// Byte by byte through volatile pointers: the compiler would make calls of themselves out of
// plainer loops.
static void* copyForwards(void* to, const void* from, std::size_t size) {
    ++memoryCalls;
    auto* out = static_cast<volatile unsigned char*>(to);
    for (const auto* in = static_cast<const volatile unsigned char*>(from); size > 0; --size) {
        *out++ = *in++;
    }
    return to;
}

extern "C" {

int memcmp(const void* left, const void* right, std::size_t size) {
    ++memoryCalls;
    const auto* a = static_cast<const volatile unsigned char*>(left);
    const auto* b = static_cast<const volatile unsigned char*>(right);
    for (; size > 0; --size, ++a, ++b) {
        if (*a != *b) {
            return *a < *b ? -1 : 1;
        }
    }
    return 0;
}

void* memcpy(void* to, const void* from, std::size_t size) { return copyForwards(to, from, size); }

void* memmove(void* to, const void* from, std::size_t size) {
    if (to <= from) {
        return copyForwards(to, from, size);
    }
    ++memoryCalls;
    auto* out = static_cast<volatile unsigned char*>(to) + size;
    for (const auto* in = static_cast<const volatile unsigned char*>(from) + size; size > 0;
         --size) {
        *--out = *--in;
    }
    return to;
}

}  // extern "C"
