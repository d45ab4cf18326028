// Every text with which a parse as a whole is refused.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface. They are cold so that building them stays out of the way of what goes well.

#ifndef ZARN_PARSER_MESSAGES_H
#define ZARN_PARSER_MESSAGES_H

#include <string>

namespace zarn_3_3::internal::messages {

[[gnu::cold]] inline std::string unknownArgument(const std::string& argument) {
    return "Unknown option: " + argument;
}

[[gnu::cold]] inline std::string optionFileUnreadable(const std::string& path) {
    return "Error reading option file '" + path + "'";
}

[[gnu::cold]] inline std::string optionFileRefused(const std::string& path,
                                                   const std::string& reason) {
    return optionFileUnreadable(path) + ": " + reason;
}

constexpr const char* optionFileCycle = "the files name each other in a cycle";
constexpr const char* tooManyOptionFiles = "more than 1000 option files in one parse";
constexpr const char* tooMuchOptionText = "more than 256 MiB of option files in one parse";

[[gnu::cold]] inline std::string actionsExclude(const std::string& action,
                                                const std::string& firstAction) {
    return "Action '-" + action + "' and action '-" + firstAction +
           "' were defined, but only one action possible.";
}

[[gnu::cold]] inline std::string actionRefusesOption(const std::string& action,
                                                     const std::string& option) {
    return "Action '-" + action + "' doesn't accept option '-" + option + "'";
}

constexpr const char* noAction = "No action defined.";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_PARSER_MESSAGES_H
