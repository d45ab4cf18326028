// The rules that tie actions and modifiers together.

#ifndef ZARN_PARSER_ACTION_RULES_H
#define ZARN_PARSER_ACTION_RULES_H

#include <string>

namespace zarn_3_3 {

class ParseResult;
class RegisteredOptionStorage;

namespace internal {

class ActionGroups;
class FailureNote;

// Whether what `result` holds goes together: one action, or several of one group; an action, when
// there are any, as soon as anything else stands there; no modifier of another action. resultOk, or
// resultRuleBroken with the text in `error`. An entry that the registry does not know ends the
// check with the code of the lookup and leaves `error` as it was.
int checkActionRules(const RegisteredOptionStorage& registry,
                     const ActionGroups& groups,
                     const ParseResult& result,
                     std::string& error,
                     FailureNote& failure);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_PARSER_ACTION_RULES_H
