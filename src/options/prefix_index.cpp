#include "options/prefix_index.h"

#include <algorithm>

#include "options/name_index.h"

namespace zarn_3_3::internal {
namespace {

bool beginsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

}  // namespace

std::string PrefixIndex::Candidate::text(const std::vector<OptionDescription>& options) const {
    const std::string& name = place.in(options);
    return isNoForm ? std::string(noPrefix).append(name) : name;
}

std::size_t PrefixIndex::Candidate::size(const std::vector<OptionDescription>& options) const {
    return place.in(options).size() + (isNoForm ? noPrefix.size() : 0);
}

void PrefixIndex::appendBeginningWith(std::string_view text,
                                      const std::vector<OptionDescription>& options,
                                      std::vector<std::string>& names) {
    catchUp(options);
    if (text.size() > longest) {
        return;
    }
    Length& length = lengths[text.size()];
    catchUp(length, text.size(), options);
    const Entry* const found = find(length, TextTable::hash(text), text, options);
    if (found == nullptr) {
        return;
    }
    if (!found->isShared) {
        names.push_back(candidates[found->candidate].text(options));
        return;
    }
    for (const Candidate& candidate : candidates) {
        std::string full = candidate.text(options);
        if (beginsWith(full, text)) {
            names.push_back(std::move(full));
        }
    }
}

void PrefixIndex::catchUp(const std::vector<OptionDescription>& options) {
    walk.catchUp(options, [&](NamePlace place) {
        candidates.push_back({place, false});  // again after a failure, which does no harm
        if (options[place.item].type == vtBool) {
            candidates.push_back({place, true});
        }
        longest = std::max(longest, candidates.back().size(options));
    });
}

void PrefixIndex::catchUp(Length& length,
                          std::size_t size,
                          const std::vector<OptionDescription>& options) const {
    for (; length.taken < candidates.size(); ++length.taken) {
        const Candidate& candidate = candidates[length.taken];
        if (candidate.size(options) >= size) {
            add(length,
                static_cast<std::uint32_t>(length.taken),
                candidate.text(options),
                size,
                options);
        }
    }
}

void PrefixIndex::add(Length& length,
                      std::uint32_t candidate,
                      std::string_view text,
                      std::size_t size,
                      const std::vector<OptionDescription>& options) const {
    const std::string_view beginning = text.substr(0, size);
    const std::uint32_t hash = TextTable::hash(beginning);
    const Entry* const known = find(length, hash, beginning, options);
    if (known == nullptr) {
        length.table.makeRoom();
        length.entries.push_back({candidate, false});
        length.table.add(hash, static_cast<std::uint32_t>(length.entries.size() - 1));
    } else if (candidates[known->candidate].text(options) != text) {
        length.entries[static_cast<std::size_t>(known - length.entries.data())].isShared = true;
    }
}

const PrefixIndex::Entry* PrefixIndex::find(const Length& length,
                                            std::uint32_t hash,
                                            std::string_view beginning,
                                            const std::vector<OptionDescription>& options) const {
    const std::uint32_t found = length.table.find(hash, [&](std::uint32_t entry) {
        return beginsWith(candidates[length.entries[entry].candidate].text(options), beginning);
    });
    return found == TextTable::none ? nullptr : &length.entries[found];
}

}  // namespace zarn_3_3::internal
