// The variables of a vocabulary, written all or none.

#ifndef ZARN_MODERN_WRITING_H
#define ZARN_MODERN_WRITING_H

#include "modern/outcome.h"

namespace zarn_3_3::internal {

// Writes what a parse that went well has found, and asks the checks of the whole line, one of which
// may end the outcome. When one does, or with an exception, the variables are as they were.
void writeVariables(StoredOutcome& outcome);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_WRITING_H
