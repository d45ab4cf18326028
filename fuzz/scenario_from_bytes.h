// Scenarios of whatever bytes.

#ifndef ZARN_FUZZ_SCENARIO_FROM_BYTES_H
#define ZARN_FUZZ_SCENARIO_FROM_BYTES_H

#include <string>

#include "bytes.h"
#include "disturbers/disturbed_play.h"

namespace fuzzing {

// Written in the language of scenarios. Most bytes decide on something small, so that most inputs
// get deep into a parse: names clash, tie and abbreviate one another, and command lines are made of
// what was declared.
//
// The bytes begin with the allocation that fails meanwhile.
struct Outage {
    long nth;
    zarn_3_3::testing_support::Lasts lasts;
};
Outage outageFrom(Bytes& bytes);
std::string scenarioFrom(Bytes bytes);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_SCENARIO_FROM_BYTES_H
