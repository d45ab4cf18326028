// Every text with which an argument is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_RECOGNIZERS_MESSAGES_H
#define ZARN_RECOGNIZERS_MESSAGES_H

#include <string>
#include <string_view>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

// For the log alone.
constexpr const char* ambiguousOptions = "Ambiguous option, possible options are: ";
constexpr const char* handlerVetoed = " One of the handler signaled the value is not valid.";

// The suffix of the messages below that name the argument they are about.
inline std::string inArgument(std::string_view argument) {
    return filled(" in argument: '{}'", {argument});
}

inline std::string unknownOption(std::string_view argument) {
    return filled("Unknown option '{}'", {argument});
}

inline std::string ambiguousOption(std::string_view text,
                                   std::string_view suffix,
                                   std::string_view candidates) {
    return filled("Ambiguous option '{}'{}, could be: {}", {text, suffix, candidates});
}

inline std::string switchTakesNoValue(std::string_view option, std::string_view suffix) {
    return filled("Option '{}'does not requires a value{}", {option, suffix});
}

inline std::string booleanTakesNoValue(std::string_view option, std::string_view suffix) {
    return filled(
        "Option '{}' is boolean and should be declared in form '--option' or '--no-option'{}",
        {option, suffix});
}

inline std::string valueRequired(std::string_view option, std::string_view suffix) {
    return filled("Option '{}' requires a value{}", {option, suffix});
}

inline std::string valueSeemsToBeOption(std::string_view option, std::string_view value) {
    return filled(
        "Option '{}' received value from the next argument: '{}', but it seems to be an option. "
        "Use '-option=value' declaration form or make sure that value is not missed",
        {option, value});
}

// Quotes the value where the argument would be expected.
inline std::string noValueParsed(std::string_view value, std::string_view option) {
    return filled("No value parsed in argument '{}' for option '{}'", {value, option});
}

inline std::string invalidValue(std::string_view argument, std::string_view reason) {
    return filled("Value validation problem in argument '{}': {}", {argument, reason});
}

inline std::string vetoedValue(std::string_view value,
                               std::string_view option,
                               std::string_view argument) {
    return filled("Value '{}' is not valid for option '{}' in argument '{}'",
                  {value, option, argument});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_RECOGNIZERS_MESSAGES_H
