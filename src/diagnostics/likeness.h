// Which of many texts are nearest to one that was mistyped.

#ifndef ZARN_DIAGNOSTICS_LIKENESS_H
#define ZARN_DIAGNOSTICS_LIKENESS_H

#include <cstddef>
#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

// The least number of bytes that are left out, put in, replaced, or swapped with their neighbour
// between the two texts, no byte twice; `most` + 1 when it is more than `most`. The first has at
// most 64 bytes.
std::size_t distance(std::string_view typed, std::string_view meant, std::size_t most);

// Collects the nearest of the texts that are offered.
class Nearest {
public:
    explicit Nearest(std::string_view typed);

    // Whether the text is as near as those that were found so far, or nearer.
    bool isNear(std::string_view text) {
        lastDistance_ = isAnyNear_ ? distance(typed_, text, most_) : most_ + 1;
        return lastDistance_ <= most_;
    }

    // Takes the text that was just found to be near. It is not copied.
    void take(std::string_view text);

    // In the order in which they were taken.
    const std::vector<std::string_view>& found() const { return found_; }

private:
    std::string_view typed_;
    bool isAnyNear_;    // short and very long texts are like too many, or like nothing
    std::size_t most_;  // the distance of those found, or what there may be
    std::size_t lastDistance_ = 0;
    std::vector<std::string_view> found_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_DIAGNOSTICS_LIKENESS_H
