// Memory that runs out while one step of a scenario is done.

#ifndef ZARN_TESTS_SUPPORT_LACK_OF_MEMORY_H
#define ZARN_TESTS_SUPPORT_LACK_OF_MEMORY_H

#include <cstddef>
#include <string>

#include "support/scenario.h"

namespace zarn_3_3::testing_support {

// Which allocation fails, of which step that parses or asks for help. Numbers beyond the last one
// begin anew.
struct Outage {
    std::size_t step;
    std::size_t allocation;
    bool isLasting;
};

// The step is answered rightly or says that it was not. When the memory is back the same step is
// answered rightly, and so are those behind it. Says what does not hold, or nothing; also nothing
// when there is no such allocation, or when handlers do more than refuse and throw.
std::string wrongWithoutMemory(const Scenario& scenario, const Outage& outage);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_LACK_OF_MEMORY_H
