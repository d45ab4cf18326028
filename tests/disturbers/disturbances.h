// What goes wrong while scenarios are played.

#ifndef ZARN_TESTS_DISTURBERS_DISTURBANCES_H
#define ZARN_TESTS_DISTURBERS_DISTURBANCES_H

#include "disturbers/disturbed_play.h"

namespace zarn_3_3::testing_support {

Disturbance lackOfMemory(Lasts lasts);

// Each allocation of the library fails in its turn (or each of so many): once, from then on until
// the end of the step, and until the end of the scenario. Says what does not hold, and counts.
std::string wrongWithoutMemory(const Scenario& scenario, long stride, long& failures);

// The same with calls that read files: each fails once or from then on, is interrupted, or reads
// less than was asked for.
std::string wrongWithoutFiles(const Scenario& scenario, long stride, long& failures);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_DISTURBANCES_H
