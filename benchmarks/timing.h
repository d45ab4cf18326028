// What is timed shares this: the clock, the workloads, the names of the runs and what is reported.

#ifndef ZARN_BENCHMARKS_TIMING_H
#define ZARN_BENCHMARKS_TIMING_H

#include <functional>
#include <string>

#include "workload.h"

namespace zarn_benchmarks {

// The seconds that `step` takes.
double timed(const std::function<void()>& step);

// A workload that is made when the first run asks for it; copies share it.
using LazyWorkload = std::function<const Workload&()>;
LazyWorkload lazily(std::function<Workload()> make);

// Registers "name/size/peer". `round` does the work once and answers the seconds that count; the
// counter "ns" is that time divided by the steps of the workload.
void addRun(const std::string& name,
            std::size_t size,
            const char* peer,
            const LazyWorkload& workload,
            std::function<double(const Workload&)> round);

void addPeerRuns();
void addLibraryRuns();

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_TIMING_H
