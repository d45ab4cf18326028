#include "peer.h"

#include <cstdio>
#include <cstdlib>

namespace zarn_benchmarks {

std::vector<Peer> allPeers() {
    return {floorPeer(),
            zarnPeer(),
            getoptPeer(),
            argpPeer(),
            poptPeer(),
            argsPeer(),
            cxxoptsPeer(),
            cli11Peer(),
            tclapPeer(),
            boostPeer()};
}

void requireChecksum(const char* peer, const Workload& workload, std::uint64_t sum) {
    if (sum == workload.expected) {
        return;
    }
    std::fprintf(stderr,
                 "%s read other values than were given (%d arguments, %zu options)\n",
                 peer,
                 workload.line.argc() - 1,
                 workload.vocabulary.options.size());
    std::exit(EXIT_FAILURE);
}

}  // namespace zarn_benchmarks
