// Prints, as JSON, what each peer takes from operator new: the start-up cycle, and per argument.

#include <cstdio>

#include "counting_new.h"
#include "peer.h"

namespace zarn_benchmarks {

namespace {

bool isFirst = true;

void print(const char* name, std::size_t size, const Peer& peer, const char* unit, double value) {
    std::printf("%s\n  \"%s/%zu/%s\": {\"%s\": %.4f",
                isFirst ? "{" : "},",
                name,
                size,
                peer.name,
                unit,
                value);
    isFirst = false;
}

void countStartUp(const Peer& peer, const Workload& workload) {
    requireChecksum(peer.name, workload, peer.cycle(workload));  // what happens once in a process
    const std::size_t before = heapCounts().allocations;
    requireChecksum(peer.name, workload, peer.cycle(workload));
    const std::size_t after = heapCounts().allocations;
    print("start-up", 20, peer, "allocations", static_cast<double>(after - before));
}

void countArguments(const char* name, const Peer& peer, const Workload& workload) {
    resetPeak();
    const HeapCounts empty = heapCounts();
    const std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    const HeapCounts declared = heapCounts();
    session->parse(workload.line);
    const HeapCounts parsed = heapCounts();
    Checksum sum;
    session->read(workload.asked, &sum);
    const HeapCounts read = heapCounts();
    requireChecksum(peer.name, workload, sum.value());

    const auto steps = static_cast<double>(workload.steps);
    const auto perArgument = [=](std::size_t number) {
        return static_cast<double>(number) / steps;
    };
    print(name,
          workload.steps,
          peer,
          "allocations",
          perArgument(read.allocations - declared.allocations));
    std::printf(", \"bytes\": %.4f, \"peak\": %.4f",
                perArgument(parsed.liveBytes - empty.liveBytes),
                perArgument(parsed.peakBytes - empty.liveBytes));
}

void countAll(std::size_t arguments) {
    const Workload small = startUp();
    const Workload texts = manyArguments(arguments, Kind::text);
    const Workload integers = manyArguments(arguments, Kind::integer);
    for (const Peer& peer : allPeers()) {
        if (!peer.limits.allocationsAreCounted) {
            continue;
        }
        countStartUp(peer, small);
        if (arguments <= peer.limits.arguments) {
            countArguments("texts", peer, texts);
            countArguments("integers", peer, integers);
        }
    }
    std::puts("}\n}");
}

}  // namespace

}  // namespace zarn_benchmarks

int main() { zarn_benchmarks::countAll(1000000); }
