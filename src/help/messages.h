// Every sentence of the help that is the library's own.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_HELP_MESSAGES_H
#define ZARN_HELP_MESSAGES_H

#include <string>
#include <string_view>
#include <vector>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

constexpr const char* unknownError = "Unknown error handled.";

// Help in the width of a terminal.

constexpr const char* usage = "Usage:";
constexpr const char* anyAction = "ACTION";
constexpr const char* anyOptions = "[options]";
constexpr const char* anyTerminator = "[--]";
constexpr const char* actions = "Actions";
constexpr const char* arguments = "Arguments";
constexpr const char* options = "Options";
constexpr const char* hiddenOptions = "Hidden options";
constexpr const char* anyText = "TEXT";
constexpr const char* anyNumber = "NUMBER";
constexpr const char* anyInteger = "INTEGER";
constexpr const char* orElse = " or ";
constexpr const char* andAlso = " and ";
constexpr const char* on = "on";
constexpr const char* off = "off";

inline std::string optionsOf(std::string_view names) { return filled("Options of {}", {names}); }
inline std::string onlyWith(std::string_view names) { return filled("with {}", {names}); }
inline std::string byDefault(std::string_view value) { return filled("default {}", {value}); }
inline std::string fromVariable(std::string_view name) { return filled("environment: {}", {name}); }

// "a", "a or b", "a, b or c"
inline std::string listed(const std::vector<std::string>& words, std::string_view last) {
    std::string list;
    for (std::size_t i = 0; i < words.size(); ++i) {
        list.append(i == 0 ? "" : i + 1 < words.size() ? ", " : last).append(words[i]);
    }
    return list;
}

inline std::string noSuchTopic(std::string_view topic) {
    return filled("Help for {} not available.Please use one of the following topics:\n", {topic});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_HELP_MESSAGES_H
