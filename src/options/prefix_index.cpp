#include "options/prefix_index.h"

#include <algorithm>
#include <numeric>

namespace zarn_3_3::internal {

PrefixIndex::Found PrefixIndex::find(std::string_view beginning, const KeptTexts& texts) {
    measure(texts);
    if (beginning.size() > longest) {
        return {};
    }
    Length& length = lengths[beginning.size()];
    if (length.taken != texts.size()) {
        catchUp(length, beginning.size(), texts);
    }
    const std::uint32_t found = findIn(length, TextHash::of(beginning), beginning, texts);
    if (found == TextTable::none) {
        return {};
    }
    return {length.beginnings[found].first, !length.beginnings[found].isShared};
}

void PrefixIndex::measure(const KeptTexts& texts) {
    for (; measured < texts.size(); ++measured) {
        const auto number = static_cast<std::uint32_t>(measured);
        const std::size_t size = texts[number].size();
        if (size > ordinary) {
            longOnes.emplace(size, number);
        }
        ++ofSize[std::min(size, ordinary)];
        longest = std::max(longest, size);
    }
}

// For all texts of at least `size` bytes, of which some may be in already.
void PrefixIndex::makeRoom(Length& length, std::size_t size) const {
    const auto* const from = ofSize.begin() + std::min(size, ordinary);
    const std::size_t count =
        size <= ordinary
            ? std::accumulate(from, ofSize.end(), std::size_t{0})
            : static_cast<std::size_t>(std::distance(longOnes.lower_bound(size), longOnes.end()));
    length.beginnings.reserve(count);
    length.table.makeRoom(count - std::min(count, length.beginnings.size()));
}

void PrefixIndex::catchUp(Length& length, std::size_t size, const KeptTexts& texts) const {
    makeRoom(length, size);
    if (length.taken == 0 && size > ordinary) {
        for (auto at = longOnes.lower_bound(size); at != longOnes.end(); ++at) {
            add(length, size, at->second, texts);
        }
        length.taken = texts.size();
    }
    for (; length.taken < texts.size(); ++length.taken) {
        const auto number = static_cast<std::uint32_t>(length.taken);
        if (texts[number].size() >= size) {
            add(length, size, number, texts);
        }
    }
}

// Needs room.
void PrefixIndex::add(Length& length,
                      std::size_t size,
                      std::uint32_t number,
                      const KeptTexts& texts) {
    const std::string_view beginning = texts[number].substr(0, size);
    const std::uint32_t hash = TextHash::of(beginning);
    const std::uint32_t known = findIn(length, hash, beginning, texts);
    if (known != TextTable::none) {
        length.beginnings[known].isShared = true;
        return;
    }
    length.table.add(hash, static_cast<std::uint32_t>(length.beginnings.size()));
    length.beginnings.push_back({number, false});
}

std::uint32_t PrefixIndex::findIn(const Length& length,
                                  std::uint32_t hash,
                                  std::string_view beginning,
                                  const KeptTexts& texts) {
    return length.table.find(hash, [&](std::uint32_t known) {
        return texts[length.beginnings[known].first].substr(0, beginning.size()) == beginning;
    });
}

}  // namespace zarn_3_3::internal
