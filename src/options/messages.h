// Every text with which a value or a declaration is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface. They are cold so that building them stays out of the way of what goes well.

#ifndef ZARN_OPTIONS_MESSAGES_H
#define ZARN_OPTIONS_MESSAGES_H

#include <string>

namespace zarn_3_3::internal::messages {

constexpr const char* nameIsTaken =
    "Tried to register an option with a name, which is alread registered: ";

[[gnu::cold]] inline std::string notOfItsType(const std::string& option,
                                              const std::string& text,
                                              const std::string& typeName) {
    return "Option '" + option + "' can not parse '" + text + "' value, requires a type '" +
           typeName + "' here.";
}

[[gnu::cold]] inline std::string ambiguousValue(const std::string& option,
                                                const std::string& valueList) {
    return "Ambiguous value for option '" + option + "'. Possible values follows: " + valueList;
}

[[gnu::cold]] inline std::string valueNotAllowed(const std::string& option,
                                                 const std::string& text,
                                                 const std::string& valueList) {
    return "Option '" + option + "' does not allow value '" + text +
           "'. Possible values follows: " + valueList;
}

[[gnu::cold]] inline std::string valueIsDeprecated(const std::string& option,
                                                   const std::string& text,
                                                   const std::string& replacement) {
    return "Warning: '" + text + "' argument is deprecated for the option '-" + option +
           "'. Use the '" + replacement + "' argument instead.";
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_OPTIONS_MESSAGES_H
