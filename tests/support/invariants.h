// What holds of every scenario, however it is played.
//
// Each function says what does not hold, or nothing when all does.

#ifndef ZARN_TESTS_SUPPORT_INVARIANTS_H
#define ZARN_TESTS_SUPPORT_INVARIANTS_H

#include <string>

#include "support/scenario.h"

namespace zarn_3_3::testing_support {

// Of what is seen: codes are known ones, have a text and a cause; texts that were handed out stay;
// numbers ascend.
std::string contradictions(const Scenario& scenario, const Answers& seen);

// The same is seen when one more listens to every parser, and frees the arguments when it hears the
// first event; when command lines come as texts, and in option files; and when nobody listens.
std::string differencesInOtherWays(const Scenario& scenario);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_INVARIANTS_H
