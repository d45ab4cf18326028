// What threads may do at the same time, and what they do although the contract excludes it. For the
// thread sanitizer, which ends the program with a code of its own when it finds a race.

#ifndef ZARN_TESTS_DISTURBERS_THREADS_H
#define ZARN_TESTS_DISTURBERS_THREADS_H

#include <string>

#include "support/scenario.h"

namespace zarn_3_3::testing_support {

std::string wrongOnThreads(const Scenario& scenario);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_THREADS_H
