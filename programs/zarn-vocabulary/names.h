// The names of an item, and how they are shown.

#ifndef ZARN_VOCABULARY_NAMES_H
#define ZARN_VOCABULARY_NAMES_H

#include <string>
#include <vector>

#include "description.h"

namespace vocabulary {

constexpr const char* noPrefix = "no-";

inline std::string primaryName(const Item& item) {
    return item.names.empty() ? "" : item.names.front();
}

// Everything that means the item when it is typed in full: its names and, of booleans, their "no-"
// forms.
inline std::vector<std::string> formsOf(const Item& item) {
    std::vector<std::string> forms;
    for (const std::string& name : item.names) {
        forms.push_back(name);
        if (item.type == Type::boolean) {
            forms.push_back(noPrefix + name);
        }
    }
    return forms;
}

// "-j", "--jobs"
inline std::string typedName(const std::string& name) {
    return (name.size() == 1 ? "-" : "--") + name;
}

inline std::string quoted(const std::string& text) { return "'" + text + "'"; }

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_NAMES_H
