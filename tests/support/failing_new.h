// Memory that is counted, and that runs out on command.

#ifndef ZARN_TESTS_SUPPORT_FAILING_NEW_H
#define ZARN_TESTS_SUPPORT_FAILING_NEW_H

#include <cstddef>

#include "support/countdown.h"

// What one thread takes from operator new. Linking failing_new.cpp replaces that in the whole
// program.
struct Memory : Countdown {
    bool isSpared = false;   // no allocation is counted down meanwhile
    std::size_t blocks = 0;  // taken since the thread began, given back or not
    std::size_t bytes = 0;
    std::size_t returned = 0;  // blocks that were given back

    std::size_t liveBlocks() const { return blocks - returned; }
};

inline thread_local Memory memory;

#endif  // ZARN_TESTS_SUPPORT_FAILING_NEW_H
