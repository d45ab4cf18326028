// Calls of one kind, of which one fails on command.

#ifndef ZARN_TESTS_SUPPORT_COUNTDOWN_H
#define ZARN_TESTS_SUPPORT_COUNTDOWN_H

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

#endif  // ZARN_TESTS_SUPPORT_COUNTDOWN_H
