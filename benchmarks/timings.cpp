// Runs what the command line selects of all that is timed.
//
// With --processor-time first, the clock stands still while other programs have the processor.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdio>
#include <ctime>
#include <memory>
#include <optional>
#include <string_view>

#include "timing.h"

namespace zarn_benchmarks {

namespace {

clockid_t usedClock = CLOCK_MONOTONIC;

double now() {
    timespec time{};
    clock_gettime(usedClock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void measure(benchmark::State& state,
             const Workload& workload,
             const std::function<double(const Workload&)>& round) {
    // So that a run depends neither on what ran before nor on how often it is repeated.
    malloc_trim(0);
    round(workload);
    double total = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = round(workload);
        state.SetIterationTime(seconds);
        total += seconds;
    }
    const double rounds = static_cast<double>(state.iterations());
    state.counters["ns"] = total * 1e9 / rounds / static_cast<double>(workload.steps);
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

}  // namespace

double timed(const std::function<void()>& step) {
    const double start = now();
    step();
    return now() - start;
}

LazyWorkload lazily(std::function<Workload()> make) {
    return [make = std::move(make),
            made = std::make_shared<std::optional<Workload>>()]() -> const Workload& {
        if (!*made) {
            *made = make();
        }
        return **made;
    };
}

void addRun(const std::string& name,
            std::size_t size,
            const char* peer,
            const LazyWorkload& workload,
            std::function<double(const Workload&)> round) {
    const std::string fullName = name + "/" + std::to_string(size) + "/" + peer;
    const auto run = [workload, round = std::move(round)](benchmark::State& state) {
        measure(state, workload(), round);
    };
    benchmark::RegisterBenchmark(fullName.c_str(), run)->UseManualTime();
}

}  // namespace zarn_benchmarks

int main(int argc, char** argv) {
    using namespace zarn_benchmarks;
    if (argc > 1 && argv[1] == std::string_view("--processor-time")) {
        usedClock = CLOCK_PROCESS_CPUTIME_ID;
        argv[1] = argv[0];
        --argc;
        ++argv;
    }
    addPeerRuns();
    addLibraryRuns();
    return runAll(argc, argv);
}
