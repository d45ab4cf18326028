// Memory that is counted, and that runs out on command.

#ifndef ZARN_TESTS_SUPPORT_FAILING_NEW_H
#define ZARN_TESTS_SUPPORT_FAILING_NEW_H

#include <cstddef>

// Calls of one kind, of which one fails on command.
struct Countdown {
    long left = 0;           // calls up to the one that fails, 1 for the next; 0: none will
    bool isLasting = false;  // whether all that follow fail as well
    bool hasStruck = false;

    // Counts a call, and says whether it is to fail.
    bool strikes() noexcept {
        if (left == 0 || --left != 0) {
            return false;
        }
        hasStruck = true;
        left = isLasting ? 1 : 0;
        return true;
    }
};

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
