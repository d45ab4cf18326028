// Every text with which a parse as a whole is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_PARSER_MESSAGES_H
#define ZARN_PARSER_MESSAGES_H

#include <string>
#include <string_view>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

inline std::string unknownArgument(std::string_view argument) {
    return filled("Unknown option: {}", {argument});
}

inline std::string optionFileUnreadable(std::string_view path) {
    return filled("Error reading option file '{}'", {path});
}

inline std::string optionFileRefused(std::string_view path, std::string_view reason) {
    return filled("{}: {}", {optionFileUnreadable(path), reason});
}

constexpr const char* optionFileCycle = "the files name each other in a cycle";
constexpr const char* tooManyOptionFiles = "more than 1000 option files in one parse";
constexpr const char* tooMuchOptionText = "more than 256 MiB of option files in one parse";

inline std::string actionsExclude(std::string_view action, std::string_view firstAction) {
    return filled("Action '-{}' and action '-{}' were defined, but only one action possible.",
                  {action, firstAction});
}

inline std::string actionRefusesOption(std::string_view action, std::string_view option) {
    return filled("Action '-{}' doesn't accept option '-{}'", {action, option});
}

constexpr const char* noAction = "No action defined.";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_PARSER_MESSAGES_H
