#include "diagnostics/likeness.h"

#include <algorithm>
#include <array>

namespace zarn_3_3::internal {
namespace {

constexpr std::size_t shortest = 3;
constexpr std::size_t longest = 64;
constexpr std::size_t mostFound = 3;

// One mistake in three bytes: whoever makes more has meant something else.
std::size_t mostMistakes(std::size_t size) {
    constexpr std::size_t few = 5;
    constexpr std::size_t some = 8;
    if (size <= few) {
        return 1;
    }
    return size <= some ? 2 : 3;
}

// Cuts off what both begin and end with, which costs nothing.
void cutCommonEnds(std::string_view& a, std::string_view& b) {
    const auto* const fork = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    const auto head = static_cast<std::size_t>(fork - a.begin());
    a.remove_prefix(head);
    b.remove_prefix(head);
    while (!a.empty() && !b.empty() && a.back() == b.back()) {
        a.remove_suffix(1);
        b.remove_suffix(1);
    }
}

// The table of distances between all beginnings, of which a row needs the two before it. Only the
// cells beside the diagonal are filled, since those further away are beyond `most`.
class Table {
public:
    Table(std::string_view a, std::string_view b, std::size_t most) : a_(a), b_(b), far_(most + 1) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            rows_[0][j] = j;
        }
    }

    // Fills row `i`, from 1 on; its least distance.
    std::size_t fill(std::size_t i) {
        const std::size_t most = far_ - 1;
        const std::size_t first = i > most ? i - most : 1;
        const std::size_t last = std::min(b_.size(), i + most);
        Row& row = rows_[i % rows_.size()];
        row[first - 1] = first == 1 ? i : far_;
        std::size_t least = row[first - 1];
        for (std::size_t j = first; j <= last; ++j) {
            row[j] = cell(i, j);
            least = std::min(least, row[j]);
        }
        row[last + 1] = far_;
        return least;
    }

    std::size_t last() const { return rows_[a_.size() % rows_.size()][b_.size()]; }

private:
    using Row = std::array<std::size_t, longest + 5>;

    std::size_t cell(std::size_t i, std::size_t j) const {
        const Row& row = rows_[i % rows_.size()];
        const Row& before = rows_[(i - 1) % rows_.size()];
        const bool isSame = a_[i - 1] == b_[j - 1];
        std::size_t least = std::min({before[j] + 1, row[j - 1] + 1, before[j - 1] + !isSame});
        if (i > 1 && j > 1 && a_[i - 1] == b_[j - 2] && a_[i - 2] == b_[j - 1]) {
            least = std::min(least, rows_[(i - 2) % rows_.size()][j - 2] + 1);
        }
        return least;
    }

    std::string_view a_;
    std::string_view b_;
    std::size_t far_;
    std::array<Row, 3> rows_;
};

}  // namespace

std::size_t distance(std::string_view typed, std::string_view meant, std::size_t most) {
    if (meant.size() > typed.size() + most || typed.size() > meant.size() + most) {
        return most + 1;
    }
    cutCommonEnds(typed, meant);
    Table table(typed, meant, most);
    for (std::size_t i = 1; i <= typed.size(); ++i) {
        // The distances of a row are no less than the least one of the row before.
        if (table.fill(i) > most) {
            return most + 1;
        }
    }
    return std::min(table.last(), most + 1);
}

Nearest::Nearest(std::string_view typed)
    : typed_(typed),
      isAnyNear_(typed.size() >= shortest && typed.size() <= longest),
      most_(mostMistakes(typed.size())) {}

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
