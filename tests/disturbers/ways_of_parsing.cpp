// Scenarios in other ways that come to the same: ways_of_parsing FILE...
//
// One more handler listens, or none; command lines are parsed as texts, and as option files.

#include <algorithm>

#include "disturbers/judged_files.h"
#include "support/invariants.h"
#include "support/stage.h"

namespace {

using namespace zarn_3_3::testing_support;

template <typename IsUnwanted>
Scenario without(Scenario scenario, IsUnwanted isUnwanted) {
    std::vector<Step>& steps = scenario.steps;
    steps.erase(std::remove_if(steps.begin(), steps.end(), isUnwanted), steps.end());
    return scenario;
}

bool isAboutHandlers(const Step& step) { return isAmong(step.verb, {"add", "remove", "on"}); }

// Each command line on its own: files are read again by every parse behind the one that names them.
std::string differencesAsOptionFiles(const Scenario& scenario) {
    std::string differences;
    for (const Step& parse : scenario.steps) {
        const auto isAnother = [&parse](const Step& step) {
            return isParse(step) && step.line != parse.line;
        };
        differences += isParse(parse) ? differencesAsOptionFile(without(scenario, isAnother)) : "";
    }
    return differences;
}

std::string judge(const Scenario& scenario) {
    std::string differences;
    for (const Scenario& one : {scenario, without(scenario, isAboutHandlers)}) {
        const Answers seen = play(one);
        differences += differencesWhenHeard(one, seen);
        // The defaults of a text are drawn by a parse of their own, which may go well to its end.
        if (!hasStep(one, {"left"})) {
            differences += differencesAsText(one, seen) + differencesAsOptionFiles(one);
        }
    }
    return differences;
}

}  // namespace

int main(int argc, char** argv) { return judgeFiles(argc, argv, judge); }
