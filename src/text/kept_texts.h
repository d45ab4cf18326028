// Texts that are kept once and found again.

#ifndef ZARN_TEXT_KEPT_TEXTS_H
#define ZARN_TEXT_KEPT_TEXTS_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/text_arena.h"
#include "text/text_hash.h"
#include "text/text_table.h"

namespace zarn_3_3::internal {

// Numbers different texts from 0, in the order in which they came. Copies of them stand close
// together, at addresses that never change, each with a terminator behind it.
class KeptTexts final {
public:
    static constexpr std::uint32_t none = TextTable::none;

    std::size_t size() const { return texts_.size(); }

    std::string_view operator[](std::uint32_t number) const { return texts_[number]; }

    // The number of a text that is kept, or none.
    std::uint32_t find(std::string_view text) const { return find(TextHash::of(text), text); }

    // The number of a text, which is kept from now on. Throws std::bad_alloc and changes nothing
    // then.
    std::uint32_t keep(std::string_view text);

private:
    std::uint32_t find(std::uint32_t hash, std::string_view text) const {
        return table_.find(hash, [&](std::uint32_t number) { return texts_[number] == text; });
    }

    std::vector<std::string_view> texts_;
    TextTable table_;  // text to number
    TextArena arena_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_KEPT_TEXTS_H
