// Comparisons and copies of memory, counted.

#ifndef ZARN_TESTS_SUPPORT_COUNTED_CALLS_H
#define ZARN_TESTS_SUPPORT_COUNTED_CALLS_H

#include <cstddef>

// Calls of memcmp, memcpy and memmove, by which texts are compared, copied and, when they are
// short, moved. Linking this file replaces the three in the whole program.
extern thread_local std::size_t memoryCalls;

#endif  // ZARN_TESTS_SUPPORT_COUNTED_CALLS_H
