// Every peer at the same work: start-up, many arguments, large vocabularies, plain arguments, help.

#include <cstdio>
#include <cstdlib>

#include "peer.h"
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

// The parse and the reading of everything.
double timeParse(const Peer& peer, const Workload& workload, bool andDestruction) {
    std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    Checksum sum;
    const double seconds = timed([&] {
        session->parse(workload.line);
        session->read(workload.asked, &sum);
        if (andDestruction) {
            session.reset();
        }
    });
    requireChecksum(peer.name, workload, sum.value());
    return seconds;
}

double timeArguments(const Peer& peer, const Workload& workload) {
    return timeParse(peer, workload, true);
}

// Without the destruction, which is that of the declarations.
double timeNames(const Peer& peer, const Workload& workload) {
    return timeParse(peer, workload, false);
}

double timeDeclarations(const Peer& peer, const Workload& workload) {
    return timed([&] { peer.declare(workload.vocabulary); });
}

void requireHelp(const Peer& peer, const Workload& workload, const std::string& help) {
    for (const DeclaredOption& item : workload.vocabulary.options) {
        const std::string firstWord = item.description.substr(0, item.description.find(' '));
        if (help.find("-" + item.name) == std::string::npos ||
            help.find(firstWord) == std::string::npos) {
            std::fprintf(stderr, "the help of %s lacks %s\n", peer.name, item.name.c_str());
            std::exit(EXIT_FAILURE);
        }
    }
}

double timeHelp(const Peer& peer, const Workload& workload) {
    const std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    std::string help;
    const double seconds = timed([&] { help = session->help(); });
    requireHelp(peer, workload, help);
    return seconds;
}

std::vector<Peer> peersWith(const std::function<bool(const Limits&)>& isAble) {
    std::vector<Peer> able;
    for (const Peer& peer : allPeers()) {
        if (isAble(peer.limits)) {
            able.push_back(peer);
        }
    }
    return able;
}

void addRuns(const std::string& name,
             std::size_t size,
             const std::vector<Peer>& peers,
             const LazyWorkload& workload,
             double (*time)(const Peer&, const Workload&)) {
    for (const Peer& peer : peers) {
        addRun(name, size, peer.name, workload, [peer, time](const Workload& work) {
            return time(peer, work);
        });
    }
}

void addArguments(std::size_t count) {
    std::vector<Peer> peers =
        peersWith([count](const Limits& limits) { return count <= limits.arguments; });
    const auto many = [count](Kind kind) {
        return lazily([=] { return manyArguments(count, kind); });
    };
    addRuns("texts", count, peers, many(Kind::text), timeArguments);
    addRuns("integers", count, peers, many(Kind::integer), timeArguments);
    peers.push_back(zarnTakingRestPeer());
    const LazyWorkload plain = lazily([=] { return positionals(count); });
    addRuns("positional", count, peers, plain, timeArguments);
}

void addVocabulary(std::size_t options) {
    const std::vector<Peer> all = allPeers();
    const std::vector<Peer> cutting =
        peersWith([](const Limits& limits) { return limits.abbreviations; });
    const std::vector<Peer> negating = {zarnPeer()};
    const LazyWorkload declared = lazily([=] { return declarations(options, 24); });
    addRuns("declare", options, all, declared, timeDeclarations);
    const auto given = [options](Kind kind, NameForm form) {
        return lazily([=] { return names(options, kind, form); });
    };
    addRuns("names-exact", options, all, given(Kind::text, NameForm::exact), timeNames);
    addRuns("names-cut", options, cutting, given(Kind::text, NameForm::cut), timeNames);
    addRuns("booleans-exact", options, negating, given(Kind::toggle, NameForm::exact), timeNames);
    addRuns("booleans-no", options, negating, given(Kind::toggle, NameForm::negated), timeNames);
}

void addHelp() {
    const auto thousand = [] {
        Workload workload = declarations(1000, 120);
        workload.steps = 1;  // one text for all of them
        return workload;
    };
    addRuns("help",
            1000,
            peersWith([](const Limits& limits) { return limits.help; }),
            lazily(thousand),
            timeHelp);
}

}  // namespace

void addPeerRuns() {
    addRuns("start-up", 20, allPeers(), lazily(startUp), timeCycles);
    for (std::size_t count : argumentCounts) {
        addArguments(count);
    }
    for (std::size_t options : vocabularySizes) {
        addVocabulary(options);
    }
    addHelp();
}

}  // namespace zarn_benchmarks
