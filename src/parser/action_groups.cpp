#include "parser/action_groups.h"

namespace zarn_3_3::internal {

void ActionGroups::add(const std::set<std::string>& actions) {
    const std::size_t group = groupCount;
    try {
        for (const std::string& action : actions) {
            groupsByAction[action].push_back(group);
        }
    } catch (...) {
        for (const std::string& action : actions) {
            const auto groups = groupsByAction.find(action);
            if (groups != groupsByAction.end() && !groups->second.empty() &&
                groups->second.back() == group) {
                groups->second.pop_back();
            }
        }
        throw;
    }
    ++groupCount;
}

const std::vector<std::size_t>& ActionGroups::holding(const std::string& action) const {
    static const std::vector<std::size_t> noGroups;
    const auto groups = groupsByAction.find(action);
    return groups == groupsByAction.end() ? noGroups : groups->second;
}

}  // namespace zarn_3_3::internal
