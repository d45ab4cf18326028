// Memory that is counted, and that runs out on command.

#ifndef ZARN_TESTS_SUPPORT_FAILING_NEW_H
#define ZARN_TESTS_SUPPORT_FAILING_NEW_H

#include <cstddef>

// What one thread takes from operator new. Linking this file replaces that in the whole program.
struct Memory {
    std::size_t blocks = 0;  // taken since the thread began, given back or not
    std::size_t bytes = 0;
    long left = 0;           // allocations up to the one that fails, 1 for the next; 0: none will
    bool isLasting = false;  // whether all that follow fail as well
    bool hasStruck = false;
    std::size_t returned = 0;  // blocks that were given back

    std::size_t liveBlocks() const { return blocks - returned; }
};

extern thread_local Memory memory;

#endif  // ZARN_TESTS_SUPPORT_FAILING_NEW_H
