// Memory runs out: memory_faults STRIDE FILE...
//
// In every scenario of the files each allocation of the library fails in its turn (or each of so
// many): once, from then on until the end of the step, and until the end of the scenario.

#include <cstdlib>
#include <iostream>

#include "disturbers/judged_files.h"
#include "disturbers/lack_of_memory.h"

using namespace zarn_3_3::testing_support;

int main(int argc, char** argv) {
    const long stride = argc > 1 ? std::atol(argv[1]) : 1;
    long failures = 0;
    const int code = judgeFiles(argc - 1, argv + 1, [&](const Scenario& scenario) {
        const Undisturbed undisturbed(scenario);
        std::string wrong;
        for (const Lasts lasts : {Lasts::once, Lasts::untilEndOfStep, Lasts::untilEndOfScenario}) {
            wrong += disturbEach(undisturbed, lackOfMemory(lasts), stride, failures);
        }
        return wrong;
    });
    std::cout << failures << " allocations failed\n";
    return code;
}
