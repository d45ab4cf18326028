#include "options/prefix_index.h"

#include <algorithm>

namespace zarn_3_3::internal {

PrefixIndex::Found PrefixIndex::find(std::string_view beginning, const KeptTexts& texts) {
    for (; measured < texts.size(); ++measured) {
        longest = std::max(longest, texts[static_cast<std::uint32_t>(measured)].size());
    }
    if (beginning.size() > longest) {
        return {};
    }
    Length& length = lengths[beginning.size()];
    catchUp(length, beginning.size(), texts);
    const std::uint32_t first = findFirst(length, TextHash::of(beginning), beginning, texts);
    return {first, first != KeptTexts::none && !length.isShared[first]};
}

void PrefixIndex::catchUp(Length& length, std::size_t size, const KeptTexts& texts) {
    if (length.taken == texts.size()) {
        return;
    }
    length.firsts.makeRoom(texts.size() - length.taken);
    length.isShared.resize(texts.size());
    for (; length.taken < texts.size(); ++length.taken) {
        const auto number = static_cast<std::uint32_t>(length.taken);
        const std::string_view text = texts[number];
        if (text.size() < size) {
            continue;
        }
        const std::string_view beginning = text.substr(0, size);
        const std::uint32_t hash = TextHash::of(beginning);
        const std::uint32_t first = findFirst(length, hash, beginning, texts);
        if (first == KeptTexts::none) {
            length.firsts.add(hash, number);
        } else {
            length.isShared[first] = true;
        }
    }
}

std::uint32_t PrefixIndex::findFirst(const Length& length,
                                     std::uint32_t hash,
                                     std::string_view beginning,
                                     const KeptTexts& texts) {
    return length.firsts.find(hash, [&](std::uint32_t number) {
        return texts[number].substr(0, beginning.size()) == beginning;
    });
}

}  // namespace zarn_3_3::internal
