// Memory that runs out while a scenario is played.

#ifndef ZARN_TESTS_DISTURBERS_LACK_OF_MEMORY_H
#define ZARN_TESTS_DISTURBERS_LACK_OF_MEMORY_H

#include "disturbers/disturbed_play.h"

namespace zarn_3_3::testing_support {

Disturbance lackOfMemory(Lasts lasts);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_LACK_OF_MEMORY_H
