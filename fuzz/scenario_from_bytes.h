// Scenarios of whatever bytes.

#ifndef ZARN_FUZZ_SCENARIO_FROM_BYTES_H
#define ZARN_FUZZ_SCENARIO_FROM_BYTES_H

#include <string>

#include "bytes.h"
#include "support/lack_of_memory.h"

namespace fuzzing {

// Written in the language of scenarios. Most bytes decide on something small, so that most inputs
// get deep into a parse: names clash, tie and abbreviate one another, and command lines are made of
// what was declared.
//
// The bytes begin with what fails meanwhile.
zarn_3_3::testing_support::Outage outageFrom(Bytes& bytes);
std::string scenarioFrom(Bytes bytes);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_SCENARIO_FROM_BYTES_H
