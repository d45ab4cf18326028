#include "parser/action_groups.h"

namespace zarn_3_3::internal {

// Makes room first: when memory runs out, no action is in the group.
void ActionGroups::add(const std::set<std::string>& actions) {
    for (const std::string& action : actions) {
        std::vector<std::size_t>& groups = groupsByAction[action];
        if (groups.size() == groups.capacity()) {
            groups.reserve(2 * groups.size() + 1);
        }
    }
    for (const std::string& action : actions) {
        groupsByAction[action].push_back(groupCount);
    }
    ++groupCount;
}

const std::vector<std::size_t>& ActionGroups::holding(const std::string& action) const {
    static const std::vector<std::size_t> noGroups;
    const auto groups = groupsByAction.find(action);
    return groups == groupsByAction.end() ? noGroups : groups->second;
}

}  // namespace zarn_3_3::internal
