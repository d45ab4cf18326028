// Finds things by text: a flat hash table of numbers.

#ifndef ZARN_OPTIONS_TEXT_TABLE_H
#define ZARN_OPTIONS_TEXT_TABLE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace zarn_3_3::internal {

// Maps texts to the numbers under which their owner keeps them. The table holds no texts: the owner
// compares. Nothing is ever removed.
class TextTable {
public:
    static constexpr std::uint32_t none = 0xffffffff;

    static std::uint32_t hash(std::string_view text) noexcept {
        return static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
    }

    // The number that was added with `hash` and for which isIt(number) holds, or none.
    template <typename IsIt>
    std::uint32_t find(std::uint32_t hash, IsIt isIt) const {
        if (slots.empty()) {
            return none;
        }
        for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
            const Slot& slot = slots[at];
            if (slot.number == none || (slot.hash == hash && isIt(slot.number))) {
                return slot.number;
            }
        }
    }

    // Makes sure that one add will not allocate. Throws std::bad_alloc and changes nothing then.
    void makeRoom() {
        if (2 * (used + 1) <= slots.size()) {
            return;
        }
        TextTable larger;
        larger.slots.resize(slots.empty() ? 16 : 2 * slots.size());
        for (const Slot& slot : slots) {
            if (slot.number != none) {
                larger.add(slot.hash, slot.number);
            }
        }
        *this = std::move(larger);
    }

    // Adds a number that find does not find yet; needs room.
    void add(std::uint32_t hash, std::uint32_t number) noexcept {
        std::size_t at = hash & mask();
        while (slots[at].number != none) {
            at = (at + 1) & mask();
        }
        slots[at] = {hash, number};
        ++used;
    }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = none;
    };

    std::size_t mask() const noexcept { return slots.size() - 1; }

    std::vector<Slot> slots;  // a power of two, at most half used
    std::size_t used = 0;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_TEXT_TABLE_H
