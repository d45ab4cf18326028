#include "timing.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>

namespace zarn_benchmarks {

namespace {

void measure(benchmark::State& state, std::size_t steps, const std::function<double()>& round) {
    // So that a run depends neither on what ran before nor on how often it is repeated.
    malloc_trim(0);
    round();
    double total = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = round();
        state.SetIterationTime(seconds);
        total += seconds;
    }
    const double rounds = static_cast<double>(state.iterations());
    state.counters["ns"] = total * 1e9 / rounds / static_cast<double>(steps);
}

}  // namespace

void addRun(const std::string& workload,
            std::size_t size,
            const char* peer,
            std::size_t steps,
            std::function<double()> round) {
    const std::string name = workload + "/" + std::to_string(size) + "/" + peer;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [steps, round = std::move(round)](benchmark::State& state) {
                                     measure(state, steps, round);
                                 })
        ->UseManualTime();
}

int runAll(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    try {
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "a peer failed: %s\n", failure.what());
        return 1;
    }
    benchmark::Shutdown();
    return 0;
}

}  // namespace zarn_benchmarks
