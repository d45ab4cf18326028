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

// Help in the width of a terminal.

constexpr const char* usage = "Usage:";
constexpr const char* anyAction = "ACTION";
constexpr const char* anyOptions = "[options]";
constexpr const char* anyTerminator = "[--]";
constexpr const char* actions = "Actions";
constexpr const char* arguments = "Arguments";
constexpr const char* options = "Options";
constexpr const char* optionsOf = "Options of ";
constexpr const char* hiddenOptions = "Hidden options";
constexpr const char* anyText = "TEXT";
constexpr const char* anyNumber = "NUMBER";
constexpr const char* anyInteger = "INTEGER";
constexpr const char* orElse = " or ";
constexpr const char* andAlso = " and ";
constexpr const char* eitherForm = "[no-]";
constexpr const char* onlyWith = "with ";
constexpr const char* byDefault = "default ";
constexpr const char* fromVariable = "environment: ";
constexpr const char* on = "on";
constexpr const char* off = "off";

inline std::string noSuchTopic(std::string_view topic) {
    return filled("Help for {} not available.Please use one of the following topics:\n", {topic});
}

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_HELP_MESSAGES_H
