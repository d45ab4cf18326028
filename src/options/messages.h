// Every text with which a value or a declaration is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_OPTIONS_MESSAGES_H
#define ZARN_OPTIONS_MESSAGES_H

#include <string>
#include <string_view>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

constexpr const char* nameIsTaken =
    "Tried to register an option with a name, which is alread registered: ";

inline std::string notOfItsType(std::string_view option,
                                std::string_view text,
                                std::string_view typeName) {
    return filled("Option '{}' can not parse '{}' value, requires a type '{}' here.",
                  {option, text, typeName});
}

inline std::string ambiguousValue(std::string_view option, std::string_view valueList) {
    return filled("Ambiguous value for option '{}'. Possible values follows: {}",
                  {option, valueList});
}

inline std::string valueNotAllowed(std::string_view option,
                                   std::string_view text,
                                   std::string_view valueList) {
    return filled("Option '{}' does not allow value '{}'. Possible values follows: {}",
                  {option, text, valueList});
}

inline std::string valueIsDeprecated(std::string_view option,
                                     std::string_view text,
                                     std::string_view replacement) {
    return filled(
        "Warning: '{}' argument is deprecated for the option '-{}'. Use the '{}' argument instead.",
        {text, option, replacement});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_OPTIONS_MESSAGES_H
