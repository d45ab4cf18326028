// Runs what the command line selects of all that is timed.
//
// With ZARN_PROCESSOR_TIME in the environment, the clock stands still while other programs have the
// processor.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstdlib>
#include <ctime>

#include "timing.h"

namespace zarn_benchmarks {

namespace {

double now() {
    static const bool ofProcessor = std::getenv("ZARN_PROCESSOR_TIME") != nullptr;
    timespec time{};
    clock_gettime(ofProcessor ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

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

double timed(const std::function<void()>& step) {
    const double start = now();
    step();
    return now() - start;
}

void addRuns(const std::string& name,
             std::size_t size,
             const std::vector<Peer>& peers,
             const LazyWorkload& workload,
             double (*time)(const Peer&, const Workload&)) {
    for (const Peer& peer : peers) {
        const std::string fullName = name + "/" + std::to_string(size) + "/" + peer.name;
        const auto run = [=](benchmark::State& state) {
            const Workload& made = workload();
            measure(state, made.steps, [&] { return time(peer, made); });
        };
        benchmark::RegisterBenchmark(fullName.c_str(), run)->UseManualTime();
    }
}

}  // namespace zarn_benchmarks

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    zarn_benchmarks::addPeerRuns();
    zarn_benchmarks::addLibraryRuns();
    benchmark::RunSpecifiedBenchmarks();
}
