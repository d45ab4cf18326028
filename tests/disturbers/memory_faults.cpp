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

class Outage final : public Disturbance {
public:
    explicit Outage(bool lasting) : isLasting(lasting) {}

    void begin(long nth) override {
        memory.hasStruck = false;
        memory.isLasting = isLasting;
        left = nth;
        blocks = memory.liveBlocks();
    }
    void cross(bool isInward) override {
        if (isInward) {
            memory.left = left;
        } else {
            left = std::exchange(memory.left, 0);
        }
    }
    bool hasStruck() const override { return memory.hasStruck; }
    void end() override { left = 0; }
    long leftBehind() const override { return static_cast<long>(memory.liveBlocks() - blocks); }

    bool mayAnswer(const std::string& verb,
                   const std::string& found,
                   const std::string& right) const override {
        if (verb == "args" || verb == "argv" || verb == "text") {
            // The text of a failure takes memory as well.
            return found == "3" || found == "3 std::bad_alloc" || found == right.substr(0, 1);
        }
        if (verb == "help" || verb == "topic" || verb == "modifiers" || verb == "globals") {
            return found == "(nothing)" ||
                   found.find("Unknown error handled. (without") != std::string::npos;
        }
        const bool isMade = verb == "parser" || verb == "result";
        return found == (isMade            ? "3"
                         : verb == "error" ? ""
                         : verb == "wrap"  ? "threw std::bad_alloc"
                                           : "no");
    }

private:
    bool isLasting;
    long left = 0;
    std::size_t blocks = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const long stride = argc > 1 ? std::atol(argv[1]) : 1;
    long failures = 0;
    const int code = judgeFiles(argc - 1, argv + 1, [&](const Scenario& scenario) {
        const Undisturbed undisturbed(scenario);
        Outage once(false);
        Outage lasting(true);
        return disturbEach(undisturbed, once, Until::endOfStep, stride, failures) +
               disturbEach(undisturbed, lasting, Until::endOfStep, stride, failures) +
               disturbEach(undisturbed, lasting, Until::endOfScenario, stride, failures);
    });
    std::cout << failures << " allocations failed\n";
    return code;
}
