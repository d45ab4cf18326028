// The names that may be typed.

#ifndef ZARN_COMPLETION_NAME_CHOICE_H
#define ZARN_COMPLETION_NAME_CHOICE_H

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "completion/candidates.h"

namespace zarn_3_3 {

class OptionDescription;
class RegisteredOptionStorage;

namespace internal {

class ActionGroups;

// Beside the actions that were given already.
class NameChoice {
public:
    // `given`: primary names.
    NameChoice(const BasicParser& parser, const std::set<std::string>& given);

    // Those that begin so, behind these dashes; without dashes, behind those that help shows.
    // Actions first, then their options, then those of no action, each in order of declaration.
    std::vector<Candidate> namesOf(std::string_view dashes, std::string_view beginning);

private:
    std::vector<std::size_t> openItems() const;
    bool isOpen(const OptionDescription& item) const;
    bool goesWithGiven(const OptionDescription& item) const;
    bool isInCommonGroup(const std::string& action) const;

    // Both say whether they have added the name itself, apart from its "no-" form.
    bool addName(std::size_t number, std::string_view name, bool withNoForm);
    bool addForm(std::size_t number, std::string_view form);

    const RegisteredOptionStorage& registry_;
    const ActionGroups& groups_;
    const std::set<std::string>& given_;
    std::vector<std::size_t> commonGroups_;  // that hold all given actions
    std::string_view dashes_;
    std::string_view beginning_;
    std::vector<Candidate> found_;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_COMPLETION_NAME_CHOICE_H
