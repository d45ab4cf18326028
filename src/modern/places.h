// Room for the values of variables, side by side: one allocation for all of a vocabulary.

#ifndef ZARN_MODERN_PLACES_H
#define ZARN_MODERN_PLACES_H

#include <cstddef>
#include <memory>

#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

class Places final {
public:
    // How many units of room a value takes.
    static std::size_t unitsOf(const TargetKind& kind) {
        return (kind.size + sizeof(std::max_align_t) - 1) / sizeof(std::max_align_t);
    }

    explicit Places(std::size_t units) : first_(new std::max_align_t[units]), next_(first_.get()) {}

    // Where the next value goes. Whoever makes it there destroys it.
    void* take(const TargetKind& kind) {
        void* const place = next_;
        next_ += unitsOf(kind);
        return place;
    }

private:
    std::unique_ptr<std::max_align_t[]> first_;
    std::max_align_t* next_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_PLACES_H
