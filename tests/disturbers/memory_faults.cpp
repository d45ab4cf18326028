// Memory runs out: memory_faults STRIDE FILE...
//
// In every scenario of the files each allocation of the library fails in its turn (or each of so
// many): once, from then on until the end of the step, and until the end of the scenario.

#include <cstdlib>
#include <iostream>

#include "disturbers/disturbed_play.h"
#include "disturbers/judged_files.h"
#include "support/failing_new.h"

namespace {

using namespace zarn_3_3::testing_support;

// The text of a failure takes memory as well.
bool mayAnswer(const std::string& verb, const std::string& found, const std::string& right) {
    if (isParse({0, verb, {}})) {
        return found == "3" || found == "3 std::bad_alloc" || found == right.substr(0, 1);
    }
    if (isAmong(verb, {"help", "topic", "modifiers", "globals"})) {
        return found == "(nothing)" ||
               found.find("Unknown error handled. (without") != std::string::npos;
    }
    return found == (isAmong(verb, {"parser", "result"}) ? "3"
                     : verb == "error"                   ? ""
                     : verb == "wrap"                    ? "threw std::bad_alloc"
                                                         : "no");
}

}  // namespace

int main(int argc, char** argv) {
    const long stride = argc > 1 ? std::atol(argv[1]) : 1;
    long failures = 0;
    const int code = judgeFiles(argc - 1, argv + 1, [&](const Scenario& scenario) {
        const Undisturbed undisturbed(scenario);
        std::string wrong;
        for (const Lasts lasts : {Lasts::once, Lasts::untilEndOfStep, Lasts::untilEndOfScenario}) {
            wrong += disturbEach(undisturbed, {memory, lasts, mayAnswer}, stride, failures);
        }
        return wrong;
    });
    std::cout << failures << " allocations failed\n";
    return code;
}
