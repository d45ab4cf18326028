#include <map>
#include <set>
#include <string>

#include "actions.h"
#include "manifest.h"

namespace checksums {
namespace {

using EntriesByName = std::map<std::string, Entry>;

EntriesByName entriesByName(const std::string& manifest) {
    EntriesByName entries;
    for (Entry& entry : readManifest(manifest)) {
        const std::string name = entry.name;
        entries.insert_or_assign(name, std::move(entry));
    }
    return entries;
}

std::set<std::string> namesOfBoth(const EntriesByName& before, const EntriesByName& after) {
    std::set<std::string> names;
    for (const EntriesByName* entries : {&before, &after}) {
        for (const auto& [name, entry] : *entries) {
            names.insert(name);
        }
    }
    return names;
}

struct Difference {
    const char* verdict;
    Mark mark;
};

constexpr Difference added{"ADDED", Mark::notice};
constexpr Difference removed{"REMOVED", Mark::bad};
constexpr Difference changed{"CHANGED", Mark::bad};
constexpr Difference otherAlgorithm{"NOT COMPARABLE (other algorithm)", Mark::bad};

// Null when the entries are alike.
const Difference* difference(const Entry& before, const Entry& after) {
    if (before.algorithm != after.algorithm) {
        return &otherAlgorithm;
    }
    return before.checksum != after.checksum ? &changed : nullptr;
}

const Difference* difference(const std::string& name,
                             const EntriesByName& before,
                             const EntriesByName& after) {
    const auto old = before.find(name);
    const auto now = after.find(name);
    if (old == before.end()) {
        return &added;
    }
    return now == after.end() ? &removed : difference(old->second, now->second);
}

}  // namespace

ExitCode compareManifests(const Command& command, const Results& results) {
    const EntriesByName before = entriesByName(command.names[0]);
    const EntriesByName after = entriesByName(command.names[1]);
    const std::set<std::string> names = namesOfBoth(before, after);
    std::size_t count = 0;
    for (const std::string& name : names) {
        if (const Difference* found = difference(name, before, after)) {
            results.print(name, found->verdict, found->mark);
            ++count;
        }
    }
    results.printSummary(std::to_string(count) + " of " + std::to_string(names.size()) + " differ");
    return count != 0 ? exitDifferences : exitOk;
}

}  // namespace checksums
