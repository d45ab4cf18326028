// A scenario of whatever bytes, against all that holds of every scenario.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "scenario_from_bytes.h"
#include "support/invariants.h"
#include "support/lack_of_memory.h"
#include "support/stage.h"

using namespace zarn_3_3::testing_support;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzzing::Bytes bytes(data, size);
    const Outage outage = fuzzing::outageFrom(bytes);
    const Scenario scenario = readScenarios(fuzzing::scenarioFrom(bytes)).front();
    const Answers seen = play(scenario);
    const std::string found =
        contradictions(scenario, seen) + differencesWhenHeard(scenario, seen) +
        differencesAsText(scenario, seen) + differencesAsOptionFile(scenario) +
        wrongWithoutMemory(scenario, outage);
    if (!found.empty()) {
        std::fprintf(stderr, "Does not hold: %s\n", found.c_str());
        std::abort();
    }
    return 0;
}
