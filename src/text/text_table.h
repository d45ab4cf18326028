// Finds things by the hash of a text: a flat hash table of numbers.

#ifndef ZARN_TEXT_TEXT_TABLE_H
#define ZARN_TEXT_TEXT_TABLE_H

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace zarn_3_3::internal {

// Maps texts to the numbers under which their owner keeps them. The table holds no texts: the owner
// compares. Nothing is ever removed.
class TextTable {
public:
    static constexpr std::uint32_t none = 0xffffffff;

    // The number that was added with `hash` and for which isIt(number) holds, or none.
    template <typename IsIt>
    std::uint32_t find(std::uint32_t hash, IsIt isIt) const {
        if (slots_.empty()) {
            return none;
        }
        for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
            const Slot& slot = slots_[at];
            if (slot.number == none || (slot.hash == hash && isIt(slot.number))) {
                return slot.number;
            }
        }
    }

    // The same, but adds `number` where there is none; needs room. Its owner may change what it
    // gets as long as the same texts answer to it.
    template <typename IsIt>
    std::uint32_t& findOrAdd(std::uint32_t hash, std::uint32_t number, IsIt isIt) {
        std::size_t at = hash & mask();
        for (; slots_[at].number != none; at = (at + 1) & mask()) {
            if (slots_[at].hash == hash && isIt(slots_[at].number)) {
                return slots_[at].number;
            }
        }
        slots_[at] = {hash, number};
        ++used_;
        return slots_[at].number;
    }

    std::size_t size() const noexcept { return used_; }

    // Makes sure that `count` adds will not allocate. Throws std::bad_alloc and changes nothing
    // then.
    void makeRoom(std::size_t count) {
        const std::size_t needed = (used_ + count) * 4 / 3 + 1;
        if (needed <= slots_.size()) {
            return;
        }
        std::size_t size = slots_.empty() ? 64 : 2 * slots_.size();
        while (size < needed) {
            size *= 2;
        }
        TextTable larger;
        larger.slots_.resize(size);
        for (const Slot& slot : slots_) {
            if (slot.number != none) {
                larger.add(slot.hash, slot.number);
            }
        }
        *this = std::move(larger);
    }

    // Adds a number that find does not find yet; needs room.
    void add(std::uint32_t hash, std::uint32_t number) noexcept {
        std::size_t at = hash & mask();
        while (slots_[at].number != none) {
            at = (at + 1) & mask();
        }
        slots_[at] = {hash, number};
        ++used_;
    }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = none;
    };

    std::size_t mask() const noexcept { return slots_.size() - 1; }

    std::vector<Slot> slots_;  // a power of two, at most three quarters used
    std::size_t used_ = 0;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_TEXT_TABLE_H
