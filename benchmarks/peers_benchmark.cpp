// Every peer at the same work: start-up, many arguments, large vocabularies, plain arguments, help.

#include <cstdio>
#include <cstdlib>

#include "peer.h"
#include "timing.h"

namespace zarn_benchmarks {

namespace {

// From the declaration to the destruction. Several cycles a round, so that the clock is no part.
double timeCycles(const Peer& peer, const Workload& workload, int cycles) {
    const Stopwatch watch;
    for (int i = 0; i < cycles; ++i) {
        requireChecksum(peer.name, workload, peer.cycle(workload));
    }
    return watch.seconds();
}

// The parse, the reading of everything and the destruction of a declared session.
double timeArguments(const Peer& peer, const Workload& workload) {
    std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    Checksum sum;
    const Stopwatch watch;
    session->parse(workload.line);
    session->read(workload.asked, &sum);
    session.reset();
    const double seconds = watch.seconds();
    requireChecksum(peer.name, workload, sum.value());
    return seconds;
}

// Without the destruction, which is that of the declarations.
double timeNames(const Peer& peer, const Workload& workload) {
    const std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    Checksum sum;
    const Stopwatch watch;
    session->parse(workload.line);
    session->read(workload.asked, &sum);
    const double seconds = watch.seconds();
    requireChecksum(peer.name, workload, sum.value());
    return seconds;
}

double timeDeclarations(const Peer& peer, const Workload& workload) {
    const Stopwatch watch;
    std::unique_ptr<ISession> session = peer.declare(workload.vocabulary);
    session.reset();
    return watch.seconds();
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
    const Stopwatch watch;
    const std::string help = session->help();
    const double seconds = watch.seconds();
    requireHelp(peer, workload, help);
    return seconds;
}

void addStartUp() {
    constexpr std::size_t cycles = 16;
    const LazyWorkload lazy(startUp);
    for (const Peer& peer : allPeers()) {
        addRun("start-up", 20, peer.name, cycles, [peer, lazy] {
            return timeCycles(peer, lazy.get(), cycles);
        });
    }
}

void addManyArguments(const std::string& name, Kind kind) {
    for (std::size_t count : argumentCounts) {
        const LazyWorkload lazy([=] { return manyArguments(count, kind); });
        for (const Peer& peer : allPeers()) {
            if (count <= peer.limits.arguments) {
                addRun(name, count, peer.name, count, [peer, lazy] {
                    return timeArguments(peer, lazy.get());
                });
            }
        }
    }
}

void addDeclarations(std::size_t options) {
    const LazyWorkload lazy([=] { return declarations(options, 24); });
    for (const Peer& peer : allPeers()) {
        addRun("declare", options, peer.name, options, [peer, lazy] {
            return timeDeclarations(peer, lazy.get());
        });
    }
}

void addNames(const std::string& name,
              std::size_t options,
              Kind kind,
              NameForm form,
              const std::vector<Peer>& peers) {
    const LazyWorkload lazy([=] { return names(options, kind, form); });
    for (const Peer& peer : peers) {
        addRun(name, options, peer.name, namesGiven, [peer, lazy] {
            return timeNames(peer, lazy.get());
        });
    }
}

void addVocabulary() {
    std::vector<Peer> abbreviating;
    for (const Peer& peer : allPeers()) {
        if (peer.limits.abbreviations) {
            abbreviating.push_back(peer);
        }
    }
    for (std::size_t options : vocabularySizes) {
        addDeclarations(options);
        addNames("names-exact", options, Kind::text, NameForm::exact, allPeers());
        addNames("names-cut", options, Kind::text, NameForm::cut, abbreviating);
        addNames("booleans-exact", options, Kind::toggle, NameForm::exact, {zarnPeer()});
        addNames("booleans-no", options, Kind::toggle, NameForm::negated, {zarnPeer()});
    }
}

void addPositionals() {
    std::vector<Peer> peers = allPeers();
    peers.push_back(zarnTakingRestPeer());
    for (std::size_t count : argumentCounts) {
        const LazyWorkload lazy([=] { return positionals(count); });
        for (const Peer& peer : peers) {
            if (count <= peer.limits.arguments) {
                addRun("positional", count, peer.name, count, [peer, lazy] {
                    return timeArguments(peer, lazy.get());
                });
            }
        }
    }
}

void addHelp() {
    const LazyWorkload lazy([] { return declarations(1000, 120); });
    for (const Peer& peer : allPeers()) {
        if (peer.limits.help) {
            addRun("help", 1000, peer.name, 1, [peer, lazy] { return timeHelp(peer, lazy.get()); });
        }
    }
}

}  // namespace

}  // namespace zarn_benchmarks

int main(int argc, char** argv) {
    using namespace zarn_benchmarks;
    addStartUp();
    addManyArguments("texts", Kind::text);
    addManyArguments("integers", Kind::integer);
    addVocabulary();
    addPositionals();
    addHelp();
    return runAll(argc, argv);
}
