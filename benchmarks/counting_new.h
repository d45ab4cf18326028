// Counts what a program takes from operator new. Linking it replaces the operator everywhere.

#ifndef ZARN_BENCHMARKS_COUNTING_NEW_H
#define ZARN_BENCHMARKS_COUNTING_NEW_H

#include <cstddef>

namespace zarn_benchmarks {

struct HeapCounts {
    std::size_t allocations = 0;  // since the program began
    std::size_t liveBytes = 0;    // as asked for, without what malloc adds
    std::size_t peakBytes = 0;    // the most that was live since resetPeak
};

HeapCounts heapCounts();

// From now on, `peakBytes` is that of what follows.
void resetPeak();

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_COUNTING_NEW_H
