// Memory that is counted, and that runs out on command.

#ifndef ZARN_TESTS_SUPPORT_FAILING_NEW_H
#define ZARN_TESTS_SUPPORT_FAILING_NEW_H

#include <cstddef>

// Linking this file replaces operator new and delete in the whole program.

enum class Outage {
    once,     // the n-th allocation fails, the next one works again
    lasting,  // every allocation from the n-th on fails
};

// While it lives, allocations of this thread fail as asked; `countdown` 1 is the next one.
class FailingNew {
public:
    FailingNew(long countdown, Outage outage);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;

    // Whether the allocation to fail was reached.
    bool struck() const;
};

// What this thread took from operator new since it began, given back or not.
struct Allocated {
    std::size_t blocks;
    std::size_t bytes;
};

Allocated allocated();

// Calls scenario(countdown, outage) for every n from 1 until the scenario, which makes its own
// FailingNew and answers struck(), runs through without a failure. Returns the last n.
template <typename Scenario>
long forEveryAllocation(Outage outage, Scenario scenario) {
    long countdown = 1;
    while (scenario(countdown, outage)) {
        ++countdown;
    }
    return countdown;
}

#endif  // ZARN_TESTS_SUPPORT_FAILING_NEW_H
