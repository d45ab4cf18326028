// Which of many texts are nearest to one that was mistyped.

#ifndef ZARN_DIAGNOSTICS_LIKENESS_H
#define ZARN_DIAGNOSTICS_LIKENESS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

// Collects the nearest of the texts that are offered.
class Nearest {
public:
    explicit Nearest(std::string_view typed);

    // Whether the text is as near as those that were found so far, or nearer.
    bool isNear(std::string_view text) {
        // Texts of other lengths are out without a look at them.
        const bool canBeNear = isAnyNear_ && text.size() <= typed_.size() + most_ &&
                               typed_.size() <= text.size() + most_;
        lastDistance_ = canBeNear ? distance(text) : most_ + 1;
        return lastDistance_ <= most_;
    }

    // Takes the text that was just found to be near. It is not copied.
    void take(std::string_view text);

    // In the order in which they were taken.
    const std::vector<std::string_view>& found() const { return found_; }

    // The least number of bytes that are left out, put in, replaced, or swapped with their
    // neighbour between the text and the one that was typed, which has at most 64; no byte twice.
    std::size_t distance(std::string_view text) const;

private:
    std::string_view typed_;
    std::array<std::uint64_t, 256> places_{};  // of each byte in what was typed
    bool isAnyNear_;    // short and very long texts are like too many, or like nothing
    std::size_t most_;  // the distance of those found, or what there may be
    std::size_t lastDistance_ = 0;
    std::vector<std::string_view> found_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_DIAGNOSTICS_LIKENESS_H
