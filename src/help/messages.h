// Every sentence of the help that is the library's own.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface. They are cold so that building them stays out of the way of what goes well.

#ifndef ZARN_HELP_MESSAGES_H
#define ZARN_HELP_MESSAGES_H

#include <string>

namespace zarn_3_3::internal::messages {

constexpr const char* unknownError = "Unknown error handled.";

[[gnu::cold]] inline std::string noSuchTopic(const std::string& topic) {
    return "Help for " + topic + " not available.Please use one of the following topics:\n";
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_HELP_MESSAGES_H
