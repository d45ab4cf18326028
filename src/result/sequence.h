// The running sequence number.

#ifndef ZARN_RESULT_SEQUENCE_H
#define ZARN_RESULT_SEQUENCE_H

#include <atomic>
#include <limits>
#include <stdexcept>

namespace zarn_3_3::internal {

// Orders everything that one process ever stores, and is never reset. Two parses at once may draw
// equal numbers, but that is all: the operations are atomic, though not one together.
class Sequence {
public:
    // Throws std::overflow_error when there is no number left.
    static int draw() {
        const int drawn = next.load(std::memory_order_relaxed);
        if (drawn == std::numeric_limits<int>::max()) {
            throw std::overflow_error("The sequence numbers are used up");
        }
        next.store(drawn + 1, std::memory_order_relaxed);
        return drawn;
    }

    static inline std::atomic<int> next{1};
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_RESULT_SEQUENCE_H
