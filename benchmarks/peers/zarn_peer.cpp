// zarn, with and without the flag that gives the rest to the first plain argument.

#include "peers/zarn_session.h"

namespace zarn_benchmarks {

namespace {

class ZarnTakingRest final : public ZarnSession {
public:
    explicit ZarnTakingRest(const Vocabulary& vocabulary)
        : ZarnSession(vocabulary, zarn::flagPositionalTakesRest) {}
};

}  // namespace

Peer zarnPeer() {
    return makePeer<ZarnSession>("zarn", canAbbreviate | canHelp | canTakeMany | canBeCounted);
}

Peer zarnTakingRestPeer() { return makePeer<ZarnTakingRest>("zarn-rest", canTakeMany); }

}  // namespace zarn_benchmarks
