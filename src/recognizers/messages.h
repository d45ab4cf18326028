// Every text with which an argument is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_RECOGNIZERS_MESSAGES_H
#define ZARN_RECOGNIZERS_MESSAGES_H

#include <string>
#include <string_view>

#include "text/joined.h"

namespace zarn_3_3::internal::messages {

// The suffix of the messages below that name the argument they are about.
inline std::string inArgument(std::string_view argument) {
    return joined({" in argument: '", argument, "'"});
}

inline std::string unknownOption(std::string_view argument) {
    return joined({"Unknown option '", argument, "'"});
}

constexpr const char* ambiguousOptions = "Ambiguous option, possible options are: ";

inline std::string ambiguousOption(std::string_view text,
                                   std::string_view suffix,
                                   std::string_view candidates) {
    return joined({"Ambiguous option '", text, "'", suffix, ", could be: ", candidates});
}

inline std::string switchTakesNoValue(std::string_view option, std::string_view suffix) {
    return joined({"Option '", option, "'does not requires a value", suffix});
}

inline std::string booleanTakesNoValue(std::string_view option, std::string_view suffix) {
    return joined({"Option '",
                   option,
                   "' is boolean and should be declared in form '--option' or '--no-option'",
                   suffix});
}

inline std::string valueRequired(std::string_view option, std::string_view suffix) {
    return joined({"Option '", option, "' requires a value", suffix});
}

inline std::string valueSeemsToBeOption(std::string_view option, std::string_view value) {
    return joined({"Option '",
                   option,
                   "' received value from the next argument: '",
                   value,
                   "', but it seems to be an option. Use '-option=value' declaration form",
                   " or make sure that value is not missed"});
}

// Quotes the value where the argument would be expected.
inline std::string noValueParsed(std::string_view value, std::string_view option) {
    return joined({"No value parsed in argument '", value, "' for option '", option, "'"});
}

inline std::string invalidValue(std::string_view argument, std::string_view reason) {
    return joined({"Value validation problem in argument '", argument, "': ", reason});
}

inline std::string vetoedValue(std::string_view value,
                               std::string_view option,
                               std::string_view argument) {
    return joined({"Value '",
                   value,
                   "' is not valid for option '",
                   option,
                   "' in argument '",
                   argument,
                   "'"});
}

// For the log alone.
constexpr const char* handlerVetoed = " One of the handler signaled the value is not valid.";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_RECOGNIZERS_MESSAGES_H
