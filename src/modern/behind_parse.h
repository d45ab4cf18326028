// What is asked when the plain parse has gone well: the environment, what is required, the rules.

#ifndef ZARN_MODERN_BEHIND_PARSE_H
#define ZARN_MODERN_BEHIND_PARSE_H

#include <string>

#include "modern/outcome.h"

namespace zarn_3_3::internal {

// Whether an option that is alone() was given.
bool isAloneGiven(const StoredOutcome& outcome);

// Each answers resultOk, or a code with its text in `error`.

// Takes values of the environment for items that were not given.
int readEnvironment(StoredOutcome& outcome, std::string& error);

int checkRequired(StoredOutcome& outcome, std::string& error);

// Those of the parser, then whether values differ that must not.
int checkRules(StoredOutcome& outcome, std::string& error);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_BEHIND_PARSE_H
