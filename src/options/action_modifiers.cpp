#include "options/action_modifiers.h"

#include <algorithm>

namespace zarn_3_3 {

bool isIntersected(const std::set<std::string>& a, const std::set<std::string>& b) {
    // An item has a tag or two, while a command line may give many actions: walk the few, look up
    // among the many.
    const auto& smaller = a.size() < b.size() ? a : b;
    const auto& larger = a.size() < b.size() ? b : a;
    return std::any_of(smaller.begin(), smaller.end(), [&larger](const std::string& element) {
        return larger.count(element) != 0;
    });
}

void findActionModifiers(std::size_t action,
                         const OptionList& options,
                         std::vector<const OptionDescription*>& out) {
    // An action has its own names as tags: its modifiers are tagged with one of them.
    const OptionDescription& wanted = options[action];
    for (std::size_t i = 0; i < options.size(); ++i) {
        const OptionDescription& item = options[i];
        if (i != action && item.kind != kindAction && isIntersected(item.tags, wanted.tags)) {
            out.push_back(&item);
        }
    }
}

}  // namespace zarn_3_3
