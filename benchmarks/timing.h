// What is timed shares this: the clock, the workloads, the names of the runs and what is reported.

#ifndef ZARN_BENCHMARKS_TIMING_H
#define ZARN_BENCHMARKS_TIMING_H

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "peer.h"

namespace zarn_benchmarks {

// The seconds that `step` takes.
double timed(const std::function<void()>& step);

// A workload that is made when the first run asks for it; copies share it.
using LazyWorkload = std::function<const Workload&()>;

template <typename Make, typename... Arguments>
LazyWorkload lazily(Make make, Arguments... arguments) {
    const auto made = std::make_shared<std::optional<Workload>>();
    return [=]() -> const Workload& {
        if (!*made) {
            *made = make(arguments...);
        }
        return **made;
    };
}

// Registers "name/size/peer" for each peer. `time` does the work once and answers the seconds that
// count; the counter "ns" is that time divided by the steps of the workload.
void addRuns(const std::string& name,
             std::size_t size,
             const std::vector<Peer>& peers,
             const LazyWorkload& workload,
             double (*time)(const Peer&, const Workload&));

void addPeerRuns();
void addLibraryRuns();

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_TIMING_H
