// Every peer at the same work: start-up, many arguments, large vocabularies, plain arguments, help.

#include "timing.h"

namespace zarn_benchmarks {

namespace {

// From the declaration to the destruction.
double timeCycles(const Peer& peer, const Workload& workload) {
    return timed([&] {
        for (std::size_t i = 0; i < workload.steps; ++i) {
            requireChecksum(peer.name, workload, peer.cycle(workload));
        }
    });
}

enum class Destruction { isTimed, isNotTimed };

// The parse and the reading of everything.
template <Destruction destruction>
double timeParse(const Peer& peer, const Workload& workload) {
    std::unique_ptr<Session> session = peer.declare(workload.vocabulary);
    return timed([&] {
        session->parse(workload.line);
        requireChecksum(peer.name, workload, session->readAll(workload.asked));
        if (destruction == Destruction::isTimed) {
            session.reset();
        }
    });
}

constexpr auto timeArguments = &timeParse<Destruction::isTimed>;

// The destruction would be that of the declarations.
constexpr auto timeNames = &timeParse<Destruction::isNotTimed>;

double timeDeclared(const Peer& peer, const Workload& workload) {
    return timed([&] { peer.declare(workload.vocabulary); });
}

void requireHelp(const Peer& peer, const Workload& workload, const std::string& help) {
    const auto lacks = [&](const std::string& text) {
        return help.find(text) == std::string::npos;
    };
    for (const DeclaredOption& item : workload.vocabulary.options) {
        const std::string firstWord = item.description.substr(0, item.description.find(' '));
        if (lacks("-" + item.name) || lacks(firstWord)) {
            throw std::runtime_error(peer.name + (" has no help for " + item.name));
        }
    }
}

double timeHelp(const Peer& peer, const Workload& workload) {
    const std::unique_ptr<Session> session = peer.declare(workload.vocabulary);
    std::string help;
    const double seconds = timed([&] { help = session->help(); });
    requireHelp(peer, workload, help);
    return seconds;
}

void addArguments(std::size_t count) {
    std::vector<Peer> peers = peersThat(count > argumentCounts[0] ? canTakeMany : canParse);
    addRuns("texts", count, peers, lazily(manyArguments, count, Kind::text), timeArguments);
    addRuns("integers", count, peers, lazily(manyArguments, count, Kind::integer), timeArguments);
    peers.push_back(zarnTakingRestPeer());
    addRuns("positional", count, peers, lazily(positionals, count), timeArguments);
}

void addVocabulary(std::size_t options) {
    addRuns(
        "declare", options, peersThat(canParse), lazily(declarations, options, 24u), timeDeclared);
    const auto addNames =
        [options](const char* name, const std::vector<Peer>& peers, Kind kind, ArgumentForm form) {
            addRuns(name, options, peers, lazily(names, options, kind, form), timeNames);
        };
    addNames("names-exact", peersThat(canParse), Kind::text, ArgumentForm::exact);
    addNames("names-cut", peersThat(canAbbreviate), Kind::text, ArgumentForm::cut);
    addNames("booleans-exact", {zarnPeer()}, Kind::toggle, ArgumentForm::exact);
    addNames("booleans-no", {zarnPeer()}, Kind::toggle, ArgumentForm::negated);
}

void addHelp() {
    const auto thousand = [] {
        Workload workload = declarations(1000, 120);
        workload.steps = 1;  // one text for all of them
        return workload;
    };
    addRuns("help", 1000, peersThat(canHelp), lazily(thousand), timeHelp);
}

}  // namespace

void addPeerRuns() {
    addRuns("start-up", 20, peersThat(canParse), lazily(startUp), timeCycles);
    for (std::size_t count : argumentCounts) {
        addArguments(count);
    }
    for (std::size_t options : vocabularySizes) {
        addVocabulary(options);
    }
    addHelp();
}

}  // namespace zarn_benchmarks
