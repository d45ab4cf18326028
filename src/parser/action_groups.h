// The groups of actions that may be used together.

#ifndef ZARN_PARSER_ACTION_GROUPS_H
#define ZARN_PARSER_ACTION_GROUPS_H

#include <cstddef>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace zarn_3_3::internal {

class ActionGroups {
public:
    // Adds a group. Throws std::bad_alloc; no group is then added.
    void add(const std::set<std::string>& actions);

    // In the order in which they were added.
    std::vector<std::set<std::string>> all() const;

    // The numbers of the groups that hold the action, ascending.
    const std::vector<std::size_t>& holding(const std::string& action) const;

private:
    std::unordered_map<std::string, std::vector<std::size_t>> groupsByAction_;
    std::size_t groupCount_ = 0;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ACTION_GROUPS_H
