// What a result holds, as texts that can be compared.

#ifndef ZARN_FUZZ_OBSERVATION_H
#define ZARN_FUZZ_OBSERVATION_H

#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace fuzzing {

std::string show(const zarn_3_3::Value& value);

// Everything that stands under the names, and the arguments behind the terminator. Checks on the
// way that the numbers ascend and that one query does not contradict another.
std::string stored(zarn_3_3::IParseResult& result, const std::vector<std::string>& names);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_OBSERVATION_H
