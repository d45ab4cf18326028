// Variables that take one value, however often it is given.

#ifndef ZARN_MODERN_ONCE_H
#define ZARN_MODERN_ONCE_H

#include <string>

#include "modern/outcome.h"

namespace zarn_3_3::internal {

// Why the items that are declared once() are given with different values; empty when they are not.
// Notes the failure.
std::string differing(StoredOutcome& outcome);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_ONCE_H
