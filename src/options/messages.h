// Every text with which a value or a declaration is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_OPTIONS_MESSAGES_H
#define ZARN_OPTIONS_MESSAGES_H

#include <string>
#include <string_view>

#include "text/joined.h"

namespace zarn_3_3::internal::messages {

constexpr const char* nameIsTaken =
    "Tried to register an option with a name, which is alread registered: ";

inline std::string notOfItsType(std::string_view option,
                                std::string_view text,
                                std::string_view typeName) {
    return joined({"Option '",
                   option,
                   "' can not parse '",
                   text,
                   "' value, requires a type '",
                   typeName,
                   "' here."});
}

inline std::string ambiguousValue(std::string_view option, std::string_view valueList) {
    return joined(
        {"Ambiguous value for option '", option, "'. Possible values follows: ", valueList});
}

inline std::string valueNotAllowed(std::string_view option,
                                   std::string_view text,
                                   std::string_view valueList) {
    return joined({"Option '",
                   option,
                   "' does not allow value '",
                   text,
                   "'. Possible values follows: ",
                   valueList});
}

inline std::string valueIsDeprecated(std::string_view option,
                                     std::string_view text,
                                     std::string_view replacement) {
    return joined({"Warning: '",
                   text,
                   "' argument is deprecated for the option '-",
                   option,
                   "'. Use the '",
                   replacement,
                   "' argument instead."});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_OPTIONS_MESSAGES_H
