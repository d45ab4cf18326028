// Every text with which an argument is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface. They are cold so that building them stays out of the way of what goes well.

#ifndef ZARN_RECOGNIZERS_MESSAGES_H
#define ZARN_RECOGNIZERS_MESSAGES_H

#include <string>

namespace zarn_3_3::internal::messages {

[[gnu::cold]] inline std::string inArgument(const std::string& argument) {
    return " in argument: '" + argument + "'";
}

[[gnu::cold]] inline std::string unknownOption(const std::string& argument) {
    return "Unknown option '" + argument + "'";
}

constexpr const char* ambiguousOptions = "Ambiguous option, possible options are: ";

[[gnu::cold]] inline std::string ambiguousOption(const std::string& text,
                                                 const std::string& argument,
                                                 const std::string& candidates) {
    return "Ambiguous option '" + text + "'" + inArgument(argument) + ", could be: " + candidates;
}

[[gnu::cold]] inline std::string switchTakesNoValue(const std::string& option,
                                                    const std::string& argument) {
    return "Option '" + option + "'does not requires a value" + inArgument(argument);
}

[[gnu::cold]] inline std::string booleanTakesNoValue(const std::string& option,
                                                     const std::string& argument) {
    return "Option '" + option +
           "' is boolean and should be declared in form '--option' or '--no-option'" +
           inArgument(argument);
}

[[gnu::cold]] inline std::string valueRequired(const std::string& option,
                                               const std::string& argument) {
    return "Option '" + option + "' requires a value" + inArgument(argument);
}

[[gnu::cold]] inline std::string valueSeemsToBeOption(const std::string& option,
                                                      const std::string& value) {
    return "Option '" + option + "' received value from the next argument: '" + value +
           "', but it seems to be an option. Use '-option=value' declaration form or make sure "
           "that value is not missed";
}

// Quotes the value where the argument would be expected.
[[gnu::cold]] inline std::string noValueParsed(const std::string& value,
                                               const std::string& option) {
    return "No value parsed in argument '" + value + "' for option '" + option + "'";
}

[[gnu::cold]] inline std::string invalidValue(const std::string& argument,
                                              const std::string& reason) {
    return "Value validation problem in argument '" + argument + "': " + reason;
}

[[gnu::cold]] inline std::string vetoedValue(const std::string& value,
                                             const std::string& option,
                                             const std::string& argument) {
    return "Value '" + value + "' is not valid for option '" + option + "' in argument '" +
           argument + "'";
}

// For the log alone.
constexpr const char* handlerVetoed = " One of the handler signaled the value is not valid.";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_RECOGNIZERS_MESSAGES_H
