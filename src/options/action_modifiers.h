// Which items belong to which actions.

#ifndef ZARN_OPTIONS_ACTION_MODIFIERS_H
#define ZARN_OPTIONS_ACTION_MODIFIERS_H

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "options/option_list.h"

namespace zarn_3_3 {

// Whether the two sets share an element.
bool isIntersected(const std::set<std::string>& a, const std::set<std::string>& b);

// Appends the items other than `action` that are no actions and share a tag with it, in the order
// of declaration. Throws std::out_of_range when there is no item with that index.
void findActionModifiers(std::size_t action,
                         const OptionList& options,
                         std::vector<const OptionDescription*>& out);

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_ACTION_MODIFIERS_H
