// Prints, as JSON, what each peer takes from operator new: the start-up cycle, and per argument.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <utility>

#include "peer.h"

namespace zarn_benchmarks {

namespace {

struct HeapCounts {
    std::size_t allocations = 0;  // since the program began
    std::size_t liveBytes = 0;    // as asked for, without what malloc adds
    std::size_t peakBytes = 0;    // the most that was live
};

HeapCounts counts;

// Room for the size in front of each block, as wide as the alignment that new promises.
constexpr std::size_t header = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

// What stands before a member of the JSON object.
const char* separator() {
    static const char* next = "{";
    return std::exchange(next, ",");
}

void countStartUp(const Peer& peer, const Workload& workload) {
    requireChecksum(peer.name, workload, peer.cycle(workload));  // what happens once in a process
    const std::size_t before = counts.allocations;
    requireChecksum(peer.name, workload, peer.cycle(workload));
    const std::size_t taken = counts.allocations - before;
    std::printf("%s\n\"start-up/20/%s\": {\"allocations\": %zu}", separator(), peer.name, taken);
}

void countArguments(const char* name, const Peer& peer, const Workload& workload) {
    counts.peakBytes = counts.liveBytes;
    const HeapCounts empty = counts;
    const std::unique_ptr<Session> session = peer.declare(workload.vocabulary);
    const HeapCounts declared = counts;
    session->parse(workload.line);
    const HeapCounts parsed = counts;
    requireChecksum(peer.name, workload, session->readAll(workload.asked));
    const HeapCounts read = counts;

    const auto perArgument = [&workload](std::size_t number) {
        return static_cast<double>(number) / static_cast<double>(workload.steps);
    };
    std::printf("%s\n\"%s/%zu/%s\": {\"allocations\": %.4f, \"bytes\": %.4f, \"peak\": %.4f}",
                separator(),
                name,
                workload.steps,
                peer.name,
                perArgument(read.allocations - declared.allocations),
                perArgument(parsed.liveBytes - empty.liveBytes),
                perArgument(parsed.peakBytes - empty.liveBytes));
}

void countAll(std::size_t arguments) {
    const Workload small = startUp();
    for (const Peer& peer : peersThat(canBeCounted)) {
        countStartUp(peer, small);
    }
    const Workload texts = manyArguments(arguments, Kind::text);
    const Workload integers = manyArguments(arguments, Kind::integer);
    for (const Peer& peer : peersThat(canBeCounted | canTakeMany)) {
        countArguments("texts", peer, texts);
        countArguments("integers", peer, integers);
    }
    std::puts("\n}");
}

}  // namespace

}  // namespace zarn_benchmarks

void* operator new(std::size_t size) {
    using zarn_benchmarks::counts;
    auto* block = static_cast<char*>(std::malloc(size + zarn_benchmarks::header));
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    *reinterpret_cast<std::size_t*>(block) = size;
    ++counts.allocations;
    counts.liveBytes += size;
    counts.peakBytes = std::max(counts.peakBytes, counts.liveBytes);
    return block + zarn_benchmarks::header;
}

void operator delete(void* pointer) noexcept {
    if (pointer != nullptr) {
        char* block = static_cast<char*>(pointer) - zarn_benchmarks::header;
        zarn_benchmarks::counts.liveBytes -= *reinterpret_cast<std::size_t*>(block);
        std::free(block);
    }
}

void operator delete(void* pointer, std::size_t) noexcept { operator delete(pointer); }

// As many arguments as asked for.
int main(int argc, char** argv) {
    zarn_benchmarks::countAll(argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 1000000);
}
