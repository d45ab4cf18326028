// A scenario of whatever bytes, against all that holds of every scenario.

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <utility>

#include "disturbers/disturbances.h"
#include "scenario_from_bytes.h"
#include "support/failing_new.h"
#include "support/invariants.h"
#include "support/stage.h"

using namespace zarn_3_3::testing_support;

namespace {

// A disturbed play needs several others beside it, so there are numbers that few scenarios reach.
std::string wrongWithoutMemory(const Scenario& scenario, const fuzzing::Outage& outage) {
    memory.left = std::numeric_limits<long>::max();
    play(scenario);
    const long taken = std::numeric_limits<long>::max() - std::exchange(memory.left, 0);
    return outage.nth > taken
               ? ""
               : disturb(Undisturbed(scenario), lackOfMemory(outage.lasts), outage.nth);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzzing::Bytes bytes(data, size);
    const fuzzing::Outage outage = fuzzing::outageFrom(bytes);
    const Scenario scenario = readScenarios(fuzzing::scenarioFrom(bytes)).front();
    const Answers seen = play(scenario);
    const std::string found = contradictions(scenario, seen) + differencesInOtherWays(scenario) +
                              wrongWithoutMemory(scenario, outage);
    if (!found.empty()) {
        std::fprintf(stderr, "Does not hold: %s\n", found.c_str());
        std::abort();
    }
    return 0;
}
