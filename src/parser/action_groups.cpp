#include "parser/action_groups.h"

namespace zarn_3_3::internal {

// Makes room first: when memory runs out, no action is in the group. More than is needed, as
// reserve adds nothing of its own and would copy the list for each group.
void ActionGroups::add(const std::set<std::string>& actions) {
    for (const std::string& action : actions) {
        std::vector<std::size_t>& groups = groupsByAction_[action];
        if (groups.size() == groups.capacity()) {
            groups.reserve(2 * groups.size() + 1);
        }
    }
    for (const std::string& action : actions) {
        groupsByAction_[action].push_back(groupCount_);
    }
    ++groupCount_;
}

// Put together when somebody wants to see them: a parse asks for the groups of an action. In sets,
// as the table has no order that is the same in every build.
std::vector<std::set<std::string>> ActionGroups::all() const {
    std::vector<std::set<std::string>> groups(groupCount_);
    for (const auto& [action, numbers] : groupsByAction_) {
        for (const std::size_t number : numbers) {
            groups[number].insert(action);
        }
    }
    return groups;
}

const std::vector<std::size_t>& ActionGroups::holding(const std::string& action) const {
    // By far the most actions are in no group.
    static const std::vector<std::size_t> noGroups;
    const auto groups = groupsByAction_.find(action);
    return groups == groupsByAction_.end() ? noGroups : groups->second;
}

}  // namespace zarn_3_3::internal
