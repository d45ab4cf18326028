// Lets every allocation of every scenario fail once.

#ifndef ZARN_FAULTS_MEMORY_FAULTS_H
#define ZARN_FAULTS_MEMORY_FAULTS_H

#include "scenario.h"

namespace zarn_3_3::faults {

struct Tally {
    long scenarios = 0;  // of which at least one allocation failed
    long failures = 0;
};

// Disturbs the scenario in every state of the parser, once and lasting, for every allocation.
void disturb(const Scenario& scenario, Tally& tally);

}  // namespace zarn_3_3::faults

#endif  // ZARN_FAULTS_MEMORY_FAULTS_H
