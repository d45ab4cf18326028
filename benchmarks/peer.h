// The one interface behind which every parser does the same work.

#ifndef ZARN_BENCHMARKS_PEER_H
#define ZARN_BENCHMARKS_PEER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "checksum.h"
#include "workload.h"

namespace zarn_benchmarks {

// A declared vocabulary, parsed into once. The constructor of an implementation declares; the
// vocabulary outlives it.
class ISession {
public:
    virtual ~ISession() = default;

    // Throws when the command line is refused.
    virtual void parse(const CommandLine& line) = 0;

    // Adds every value of the asked options.
    virtual void read(const std::vector<std::size_t>& asked, Checksum* sum) = 0;

    virtual std::string help() { throw std::logic_error("this peer has no help"); }
};

// What is too slow or impossible for a peer is left out of its runs.
struct Limits {
    std::size_t arguments = 1000000;
    bool abbreviations = false;
    bool help = true;
    bool allocationsAreCounted = true;  // false: a C library that calls malloc
};

struct Peer {
    const char* name;
    Limits limits;
    std::unique_ptr<ISession> (*declare)(const Vocabulary& vocabulary);
    // Declares, parses, reads and destroys; the checksum of what was read.
    std::uint64_t (*cycle)(const Workload& workload);
};

template <typename Session>
std::unique_ptr<ISession> declareSession(const Vocabulary& vocabulary) {
    return std::make_unique<Session>(vocabulary);
}

template <typename Session>
std::uint64_t runCycle(const Workload& workload) {
    Checksum sum;
    Session session(workload.vocabulary);
    session.parse(workload.line);
    session.read(workload.asked, &sum);
    return sum.value();
}

template <typename Session>
Peer makePeer(const char* name, const Limits& limits) {
    return {name, limits, &declareSession<Session>, &runCycle<Session>};
}

Peer argpPeer();
Peer argsPeer();
Peer boostPeer();
Peer cli11Peer();
Peer cxxoptsPeer();
Peer floorPeer();
Peer getoptPeer();
Peer poptPeer();
Peer tclapPeer();
Peer zarnPeer();
Peer zarnTakingRestPeer();  // made with flagPositionalTakesRest

// All of them but the last.
std::vector<Peer> allPeers();

// Ends the program when a peer read something else than was given.
void requireChecksum(const char* peer, const Workload& workload, std::uint64_t sum);

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_PEER_H
