#include "options/prefix_index.h"

#include <algorithm>

#include "options/name_index.h"

namespace zarn_3_3::internal {
namespace {

bool isBeginning(std::string_view beginning, std::string_view text) {
    return text.substr(0, beginning.size()) == beginning;
}

}  // namespace

std::string PrefixIndex::Candidate::text() const {
    const std::string& name = place.text();
    return isNoForm ? std::string(noPrefix).append(name) : name;
}

bool PrefixIndex::Candidate::beginsWith(std::string_view beginning) const {
    if (!isNoForm) {
        return isBeginning(beginning, place.text());
    }
    const std::string_view head = beginning.substr(0, noPrefix.size());
    return isBeginning(head, noPrefix) && isBeginning(beginning.substr(head.size()), place.text());
}

std::size_t PrefixIndex::Candidate::size() const {
    return place.text().size() + (isNoForm ? noPrefix.size() : 0);
}

void PrefixIndex::appendBeginningWith(std::string_view text,
                                      const OptionList& options,
                                      std::vector<std::string>& names) {
    catchUp(options);
    if (text.size() > longest) {
        return;
    }
    Length& length = lengths[text.size()];
    catchUp(length, text.size());
    const Entry* const found = find(length, TextTable::hash(text), text);
    if (found == nullptr) {
        return;
    }
    if (!found->isShared) {
        names.push_back(candidates[found->candidate].text());
        return;
    }
    for (const Candidate& candidate : candidates) {
        if (candidate.beginsWith(text)) {
            names.push_back(candidate.text());
        }
    }
}

void PrefixIndex::catchUp(const OptionList& options) {
    walk.catchUp(options, [&](NamePlace place) {
        candidates.push_back({place, false});  // again after a failure, which does no harm
        if (place.item->type == vtBool) {
            candidates.push_back({place, true});
        }
        longest = std::max(longest, candidates.back().size());
    });
}

void PrefixIndex::catchUp(Length& length, std::size_t size) const {
    for (; length.taken < candidates.size(); ++length.taken) {
        const Candidate& candidate = candidates[length.taken];
        if (candidate.size() >= size) {
            add(length, static_cast<std::uint32_t>(length.taken), candidate.text(), size);
        }
    }
}

void PrefixIndex::add(Length& length,
                      std::uint32_t candidate,
                      std::string_view text,
                      std::size_t size) const {
    const std::string_view beginning = text.substr(0, size);
    const std::uint32_t hash = TextTable::hash(beginning);
    const Entry* const known = find(length, hash, beginning);
    if (known == nullptr) {
        length.table.makeRoom();
        length.entries.push_back({candidate, false});
        length.table.add(hash, static_cast<std::uint32_t>(length.entries.size() - 1));
    } else if (!candidates[known->candidate].equals(text)) {
        length.entries[static_cast<std::size_t>(known - length.entries.data())].isShared = true;
    }
}

const PrefixIndex::Entry* PrefixIndex::find(const Length& length,
                                            std::uint32_t hash,
                                            std::string_view beginning) const {
    const std::uint32_t found = length.table.find(hash, [&](std::uint32_t entry) {
        return candidates[length.entries[entry].candidate].beginsWith(beginning);
    });
    return found == TextTable::none ? nullptr : &length.entries[found];
}

}  // namespace zarn_3_3::internal
