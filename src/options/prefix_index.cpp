#include "options/prefix_index.h"

#include <algorithm>
#include <numeric>

namespace zarn_3_3::internal {
namespace {

// Compares a beginning with that of a text in the table, where none is shorter. The lowest bit of
// an entry only says whether the beginning is shared.
auto beginsSo(std::string_view beginning, const KeptTexts& texts) {
    return [beginning, &texts](std::uint32_t entry) {
        return std::string_view(texts[entry / 2].data(), beginning.size()) == beginning;
    };
}

}  // namespace

PrefixIndex::Found PrefixIndex::find(std::string_view beginning, const KeptTexts& texts) {
    measure(texts);
    if (beginning.size() > longest_) {
        return {};
    }
    Length& length = lengths_[beginning.size()];
    // Each length catches up by itself, when it is asked for: users abbreviate to a few lengths,
    // and most of a vocabulary is never abbreviated at all.
    if (length.taken != candidates(beginning.size())) {
        catchUp(length, beginning.size(), texts);
    }
    const std::uint32_t found =
        length.table.find(TextHash::of(beginning), beginsSo(beginning, texts));
    if (found == TextTable::none) {
        return {};
    }
    return {found / 2, found % 2 == 0};
}

// Sorts the texts by length as they come. Without that each new length would go through all the
// long names, of which a vocabulary may be full.
void PrefixIndex::measure(const KeptTexts& texts) {
    for (; measured_ < texts.size(); ++measured_) {
        const auto number = static_cast<std::uint32_t>(measured_);
        const std::size_t size = texts[number].size();
        if (isLong(size)) {
            longOnes_.push_back(number);
        }
        ++ofSize_[std::min(size, ordinary)];
        longest_ = std::max(longest_, size);
    }
}

std::size_t PrefixIndex::candidates(std::size_t size) const {
    return isLong(size) ? longOnes_.size() : measured_;
}

std::uint32_t PrefixIndex::candidate(std::size_t size, std::size_t at) const {
    return isLong(size) ? longOnes_[at] : static_cast<std::uint32_t>(at);
}

// How many texts have at least `size` bytes.
std::size_t PrefixIndex::countOf(std::size_t size, const KeptTexts& texts) const {
    if (!isLong(size)) {
        return std::accumulate(ofSize_.begin() + size, ofSize_.end(), std::size_t{0});
    }
    const auto isOne = [&](std::uint32_t number) { return texts[number].size() >= size; };
    return static_cast<std::size_t>(std::count_if(longOnes_.begin(), longOnes_.end(), isOne));
}

void PrefixIndex::catchUp(Length& length, std::size_t size, const KeptTexts& texts) const {
    // Room for all that can come, at once. Beginnings that are shared make it too large, never too
    // small, so that adding below cannot fail half-way.
    length.table.makeRoom(countOf(size, texts) - length.table.size());
    for (; length.taken < candidates(size); ++length.taken) {
        const std::uint32_t number = candidate(size, length.taken);
        if (texts[number].size() < size) {
            continue;
        }
        const std::string_view beginning = texts[number].substr(0, size);
        std::uint32_t& entry =
            length.table.findOrAdd(TextHash::of(beginning), 2 * number, beginsSo(beginning, texts));
        // Another text has this beginning already. Which one came first stays, that there are
        // several is marked.
        if (entry != 2 * number) {
            entry |= 1;
        }
    }
}

}  // namespace zarn_3_3::internal
