#include "diagnostics/likeness.h"

#include <algorithm>

namespace zarn_3_3::internal {
namespace {

// Shorter texts are like too many others; longer ones have more bytes than a word has bits.
constexpr std::size_t shortest = 3;
constexpr std::size_t longest = 64;
constexpr std::size_t mostFound = 3;

// One mistake in three bytes, and never more than three: whoever makes more has meant something
// else.
std::size_t mostMistakes(std::size_t size) {
    constexpr std::size_t few = 5;
    constexpr std::size_t some = 8;
    if (size <= few) {
        return 1;
    }
    return size <= some ? 2 : 3;
}

std::size_t placeOf(char byte) { return static_cast<unsigned char>(byte); }

}  // namespace

Nearest::Nearest(std::string_view typed)
    : typed_(typed),
      isAnyNear_(typed.size() >= shortest && typed.size() <= longest),
      most_(mostMistakes(typed.size())) {
    // What is longer is near to nothing, but must not shift beyond the word here.
    for (std::size_t i = 0; i < std::min(typed.size(), longest); ++i) {
        places_[placeOf(typed[i])] |= std::uint64_t{1} << i;
    }
}

// The table of the distances between all beginnings, a column at a time. Neighbours in it differ by
// one at most, so a column is two words: where it rises against the cell above, and where it falls.
// The same for what a column differs from the one before. Ten thousand names cost less so than one
// process that starts.
std::size_t Nearest::distance(std::string_view text) const {
    std::string_view typed = typed_;
    const auto* const fork =
        std::mismatch(typed.begin(), typed.end(), text.begin(), text.end()).first;
    const auto head = static_cast<std::size_t>(fork - typed.begin());  // costs nothing
    typed.remove_prefix(head);
    text.remove_prefix(head);
    if (typed.empty()) {
        return text.size();
    }
    const std::uint64_t last = std::uint64_t{1} << (typed.size() - 1);
    std::uint64_t rises = ~std::uint64_t{0};
    std::uint64_t falls = 0;
    std::uint64_t isFree = 0;  // where the diagonal costs nothing
    std::uint64_t samesBefore = 0;
    std::size_t distance = typed.size();
    for (const char byte : text) {
        const std::uint64_t sames = places_[placeOf(byte)] >> head;
        // What was typed has this byte in front of the one before it: two neighbours were swapped.
        const std::uint64_t swaps = ((~isFree & sames) << 1) & samesBefore;
        isFree = (((sames & rises) + rises) ^ rises) | sames | falls | swaps;
        std::uint64_t grows = falls | ~(isFree | rises);
        std::uint64_t shrinks = isFree & rises;
        // The last cell of a column is the distance to what was read so far.
        distance += (grows & last) != 0 ? 1 : 0;
        distance -= (shrinks & last) != 0 ? 1 : 0;
        // Against nothing typed each byte is one more, so that the first cell always grows.
        grows = (grows << 1) | 1;
        shrinks <<= 1;
        rises = shrinks | ~(isFree | grows);
        falls = grows & isFree;
        samesBefore = sames;
    }
    return distance;
}

void Nearest::take(std::string_view text) {
    if (lastDistance_ < most_) {
        most_ = lastDistance_;
        found_.clear();
    }
    if (found_.size() < mostFound) {
        found_.push_back(text);
    }
}

}  // namespace zarn_3_3::internal
