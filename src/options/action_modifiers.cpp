#include "options/action_modifiers.h"

#include <algorithm>

namespace zarn_3_3 {

bool isIntersected(const std::set<std::string>& a, const std::set<std::string>& b) {
    const auto& smaller = a.size() < b.size() ? a : b;
    const auto& larger = a.size() < b.size() ? b : a;
    return std::any_of(smaller.begin(), smaller.end(), [&larger](const std::string& element) {
        return larger.count(element) != 0;
    });
}

void findActionModifiers(std::size_t action,
                         const OptionList& options,
                         std::vector<const OptionDescription*>& out) {
    const OptionDescription& wanted = options[action];
    for (std::size_t i = 0; i < options.size(); ++i) {
        const OptionDescription& item = options[i];
        if (i != action && item.kind != kindAction && isIntersected(item.tags, wanted.tags)) {
            out.push_back(&item);
        }
    }
}

}  // namespace zarn_3_3
