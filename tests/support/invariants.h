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

// One more handler listens to every parser. The arguments are freed when it hears the first event.
std::string differencesWhenHeard(const Scenario& scenario, const Answers& seen);

// Command lines become texts with an argument in each line, as far as lines can hold them.
std::string differencesAsText(const Scenario& scenario, const Answers& seen);

// The first command line becomes an option file, when nothing else names one.
std::string differencesAsOptionFile(const Scenario& scenario);

// All of that, also without the scenario's own handlers, and of each command line.
std::string differencesInOtherWays(const Scenario& scenario);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_INVARIANTS_H
