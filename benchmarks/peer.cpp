#include "peer.h"

namespace zarn_benchmarks {

std::vector<Peer> peersThat(unsigned abilities) {
    static constexpr Peer (*makers[])() = {floorPeer,
                                           zarnPeer,
                                           getoptPeer,
                                           argpPeer,
                                           poptPeer,
                                           argsPeer,
                                           cxxoptsPeer,
                                           cli11Peer,
                                           tclapPeer,
                                           boostPeer};
    std::vector<Peer> able;
    for (const auto& make : makers) {
        const Peer peer = make();
        if ((peer.abilities & abilities) == abilities) {
            able.push_back(peer);
        }
    }
    return able;
}

void requireChecksum(const char* peer, const Workload& workload, std::uint64_t sum) {
    if (sum != workload.expected) {
        throw std::runtime_error(peer + std::string(" read other values than were given"));
    }
}

}  // namespace zarn_benchmarks
