// Every sentence of the help that is the library's own.
//
// Tools and their tests compare these texts, so the odd wording stays: a change here is a change of
// the interface.

#ifndef ZARN_HELP_MESSAGES_H
#define ZARN_HELP_MESSAGES_H

#include <string>
#include <string_view>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

constexpr const char* unknownError = "Unknown error handled.";

inline std::string noSuchTopic(std::string_view topic) {
    return filled("Help for {} not available.Please use one of the following topics:\n", {topic});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_HELP_MESSAGES_H
