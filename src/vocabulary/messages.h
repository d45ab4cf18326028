// What the author of a tool is told about its vocabulary: what is wrong, and what follows from it.

#ifndef ZARN_VOCABULARY_MESSAGES_H
#define ZARN_VOCABULARY_MESSAGES_H

#include <string>
#include <string_view>

#include "text/filled.h"

namespace zarn_3_3::internal::messages {

// Declarations that were refused; what was chained to one is lost.
inline std::string declarationRefused(std::string_view names, std::string_view reason) {
    return filled("the declaration of '{}' is lost: {}", {names, reason});
}
inline std::string refusedNameTaken(std::string_view name, std::string_view owner) {
    return filled("'{}' already means '{}'", {name, owner});
}
constexpr const char* refusedTooManyNames = "it has more than three names";
inline std::string refusedThirdName(std::string_view name) {
    return filled("its third name, '{}', is longer than two bytes", {name});
}
constexpr const char* refusedNoMemory = "memory ran out";

// Names.
constexpr const char* nameless = "the item has no name, so that nothing can be stored for it";
inline std::string untypableName(std::string_view name) {
    return filled(
        "the name '{}' can't be typed: it is empty, begins with a dash, or holds '=' or "
        "white space",
        {name});
}
inline std::string commaInName(std::string_view name) {
    return filled("'{}' is one name, with its comma: names are cut in declarations alone", {name});
}
inline std::string nameClash(std::string_view form, std::string_view owner) {
    return filled("'{}' means '{}', which was declared before: the item is not reached by it",
                  {form, owner});
}
inline std::string negatedName(std::string_view name) {
    return filled("'{}' switches the boolean off, as every name does that begins with 'no-'",
                  {name});
}
inline std::string ownTie(std::string_view tie, std::string_view name, std::string_view other) {
    return filled("'{}' begins '{}' and '{}' and nothing else, and is refused as ambiguous",
                  {tie, name, other});
}

// Actions.
inline std::string unknownAction(std::string_view action) {
    return filled("there is no action '{}' that the item could go with", {action});
}
inline std::string actionSynonym(std::string_view synonym, std::string_view action) {
    return filled("'{}' is a synonym of the action '{}', which is known by its first name alone",
                  {synonym, action});
}
inline std::string unknownInGroup(std::string_view group) {
    return filled("the group '{}' names it, and there is no such action", {group});
}
inline std::string secondPositional(std::string_view first) {
    return filled("the arguments go to '{}', which was declared before", {first});
}

// Values.
constexpr const char* defaultOnSwitch = "a switch has no value: its default is never seen";
constexpr const char* defaultEmpty = "its default is empty: a query does not find it";
inline std::string defaultType(std::string_view type) {
    return filled("its default is no value of the type '{}': a query answers something else",
                  {type});
}
inline std::string defaultNotAllowed(std::string_view text) {
    return filled("its default '{}' is none of the values that it allows", {text});
}
inline std::string valueUnusable(std::string_view text) {
    return filled("the value '{}' can't be typed: it is empty, of another type, or is cut", {text});
}
constexpr const char* valuesOnSwitch = "a switch has no value: those that it allows are never seen";
constexpr const char* deprecatedAlone =
    "without allowed values everything is accepted, and nobody is warned";

// Texts.
constexpr const char* noHelp = "it has no description: help has nothing to say of it";
constexpr const char* notUtf8 =
    "one of its texts is not UTF-8: help and description show it broken";

}  // namespace zarn_3_3::internal::messages

#endif  // ZARN_VOCABULARY_MESSAGES_H
