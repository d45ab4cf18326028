// The variables of a vocabulary, written all or none.

#ifndef ZARN_MODERN_WRITING_H
#define ZARN_MODERN_WRITING_H

#include "modern/outcome.h"

namespace zarn_3_3::internal {

// Writes what a parse that went well has found. With an exception, no variable is written.
void writeVariables(const StoredOutcome& outcome);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_WRITING_H
