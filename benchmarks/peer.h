// The one interface behind which every parser does the same work.

#ifndef ZARN_BENCHMARKS_PEER_H
#define ZARN_BENCHMARKS_PEER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "workload.h"

namespace zarn_benchmarks {

// A declared vocabulary, parsed into once. The constructor of an implementation declares; the
// vocabulary outlives it.
class Session {
public:
    virtual ~Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Throws when the command line is refused.
    virtual void parse(const CommandLine& line) = 0;

    // Adds every value of one option.
    virtual void read(std::size_t option, Checksum* sum) = 0;

    virtual std::string help() { throw std::logic_error("this peer has no help"); }

    // The checksum over all values of the asked options.
    std::uint64_t readAll(const std::vector<std::size_t>& asked) {
        Checksum sum;
        for (std::size_t option : asked) {
            read(option, &sum);
        }
        return sum.value();
    }

protected:
    explicit Session(const Vocabulary& vocabulary) : vocabulary_(vocabulary) {}

    const DeclaredOption& item(std::size_t option) const { return vocabulary_.options[option]; }

    const Vocabulary& vocabulary_;
};

// What a peer can do; what it cannot, or does too slowly, is left out of its runs.
enum Ability : unsigned {
    canParse = 0,
    canAbbreviate = 1,
    canHelp = 2,
    canTakeMany = 4,   // more than a thousand arguments, in less than quadratic time
    canBeCounted = 8,  // allocates with operator new; C libraries call malloc
};

struct Peer {
    const char* name;
    unsigned abilities;
    std::unique_ptr<Session> (*declare)(const Vocabulary& vocabulary);
    // Declares, parses, reads and destroys; the checksum of what was read.
    std::uint64_t (*cycle)(const Workload& workload);
};

template <typename Implementation>
Peer makePeer(const char* name, unsigned abilities) {
    const auto declare = [](const Vocabulary& vocabulary) -> std::unique_ptr<Session> {
        return std::make_unique<Implementation>(vocabulary);
    };
    const auto cycle = [](const Workload& workload) {
        Implementation session(workload.vocabulary);
        session.parse(workload.line);
        return session.readAll(workload.asked);
    };
    return {name, abilities, declare, cycle};
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

// All of them but the last that have all of the abilities.
std::vector<Peer> peersThat(unsigned abilities);

// Throws when a peer read something else than was given, which ends the program.
void requireChecksum(const char* peer, const Workload& workload, std::uint64_t sum);

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_PEER_H
