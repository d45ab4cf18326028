#include "pairing.h"

#include <algorithm>
#include <map>
#include <string>

#include "names.h"

namespace vocabulary {
namespace {

using Places = std::map<std::string, std::vector<std::size_t>>;

Places byName(const std::vector<Item>& items) {
    Places places;
    for (std::size_t i = 0; i < items.size(); ++i) {
        for (const std::string& name : items[i].names) {
            places[name].push_back(i);
        }
    }
    return places;
}

// Several may have one, or none, in vocabularies with mistakes.
Places byPrimaryName(const std::vector<Item>& items) {
    Places places;
    for (std::size_t i = 0; i < items.size(); ++i) {
        places[primaryName(items[i])].push_back(i);
    }
    return places;
}

}  // namespace

Pairing::Pairing(const std::vector<Item>& before, const std::vector<Item>& after)
    : after_(before.size(), none), before_(after.size(), none) {
    const auto pairByName = [this](std::size_t old, const Places& places, const std::string& name) {
        const auto found = places.find(name);
        if (after_[old] != none || found == places.end()) {
            return;
        }
        const auto free = std::find_if(found->second.begin(),
                                       found->second.end(),
                                       [this](std::size_t i) { return before_[i] == none; });
        if (free != found->second.end()) {
            pair(old, *free);
        }
    };
    const Places primary = byPrimaryName(after);
    for (std::size_t i = 0; i < before.size(); ++i) {
        pairByName(i, primary, primaryName(before[i]));
    }
    const Places any = byName(after);
    for (std::size_t i = 0; i < before.size(); ++i) {
        for (const std::string& name : before[i].names) {
            pairByName(i, any, name);
        }
    }
}

void Pairing::pair(std::size_t before, std::size_t after) {
    after_[before] = after;
    before_[after] = before;
}

}  // namespace vocabulary
