// A loop whose rounds run on several threads.

#ifndef ZARN_CHECKSUMS_PARALLEL_H
#define ZARN_CHECKSUMS_PARALLEL_H

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <future>
#include <system_error>
#include <vector>

namespace checksums {

// Calls work(i) once for every i below `count`, on up to `jobs` threads, this one included; fewer
// when the system has no more. An exception of `work` leaves here once all threads are done.
template <typename Work>
void forEachIndex(std::size_t count, unsigned jobs, Work work) {
    std::atomic<std::size_t> nextIndex{0};
    const auto takeRounds = [&] {
        for (std::size_t i = nextIndex++; i < count; i = nextIndex++) {
            work(i);
        }
    };
    std::vector<std::future<void>> others;
    try {
        while (others.size() + 1 < std::min<std::size_t>(jobs, count)) {
            others.push_back(std::async(std::launch::async, takeRounds));
        }
    } catch (const std::system_error&) {
        // No further thread to be had: the ones at work share the rounds.
    }
    takeRounds();
    for (std::future<void>& other : others) {
        other.get();
    }
}

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_PARALLEL_H
