// Occurrences, which hardly any tool asks for: values by themselves are what counts.

#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include "modern/outcome.h"

namespace zarn_3_3::internal {

// A value belongs to the last occurrence before it. What is there already stays.
void StoredOutcome::addOccurrences(const char* name, std::map<int, Occurrence>& occurrences) const {
    const ItemRecord& item = vocabulary_.require(name);
    const StoredOption* const entry = result_.find(name);
    if (entry == nullptr) {
        return;
    }
    std::map<int, Occurrence> found;
    for (std::size_t i = 0; i < entry->occurrences(); ++i) {
        const int position = entry->occurrence(i);
        found.emplace(position, Occurrence{name, position, {}});
    }
    for (std::size_t i = 0; i < entry->size(); ++i) {
        const auto owner = found.upper_bound(entry->positionOf(i));
        if (owner != found.begin()) {
            std::prev(owner)->second.values.push_back(item.replaced((*entry)[i]));
        }
    }
    occurrences.merge(found);
}

std::vector<Occurrence> findOccurrences(const Outcome* outcome,
                                        const char* const* names,
                                        std::size_t count) {
    const auto& given = static_cast<const StoredOutcome&>(*outcome);
    // By position, which is also what makes two names of one option count once.
    std::map<int, Occurrence> ordered;
    for (std::size_t i = 0; i < count; ++i) {
        given.addOccurrences(names[i] == nullptr ? "" : names[i], ordered);
    }
    std::vector<Occurrence> found;
    found.reserve(ordered.size());
    for (auto& [position, occurrence] : ordered) {
        found.push_back(std::move(occurrence));
    }
    return found;
}

}  // namespace zarn_3_3::internal
