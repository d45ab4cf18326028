#include "text/kept_texts.h"

#include "text/make_room.h"

namespace zarn_3_3::internal {

std::uint32_t KeptTexts::keep(std::string_view text) {
    const std::uint32_t hash = TextHash::of(text);
    const std::uint32_t known = find(hash, text);
    if (known != none) {
        return known;
    }
    // Everything that can fail comes before the table knows of the text. The arena comes last of
    // that: nothing can be given back to it.
    table_.makeRoom(1);
    makeRoom(texts_, texts_.size() + 1, 16);
    texts_.emplace_back(arena_.keep(text), text.size());
    const auto number = static_cast<std::uint32_t>(texts_.size() - 1);
    table_.add(hash, number);
    return number;
}

}  // namespace zarn_3_3::internal
