// What the timed programs share: the clock, the names of the runs, and what is reported of them.

#ifndef ZARN_BENCHMARKS_TIMING_H
#define ZARN_BENCHMARKS_TIMING_H

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "workload.h"

namespace zarn_benchmarks {

class Stopwatch {
public:
    double seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

// A workload that is made when the first run asks for it.
class LazyWorkload {
public:
    explicit LazyWorkload(std::function<Workload()> maker)
        : state(std::make_shared<State>(State{std::move(maker), std::nullopt})) {}

    const Workload& get() const {
        if (!state->workload) {
            state->workload = state->maker();
        }
        return *state->workload;
    }

private:
    struct State {
        std::function<Workload()> maker;
        std::optional<Workload> workload;
    };

    std::shared_ptr<State> state;
};

// Registers "workload/size/peer". `round` does the work once and answers the seconds that count;
// the counter "ns" is that time divided by `steps`.
void addRun(const std::string& workload,
            std::size_t size,
            const char* peer,
            std::size_t steps,
            std::function<double()> round);

// Runs what the command line selects of the registered runs; the exit code of the program.
int runAll(int argc, char** argv);

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_TIMING_H
