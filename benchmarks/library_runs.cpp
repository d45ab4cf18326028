// What only this library does, or must do at any size: parsing again, texts and files of arguments,
// values of many pieces or many bytes, queries.

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "peers/zarn_session.h"
#include "timing.h"

namespace zarn_benchmarks {

namespace {

void requireValues(ZarnSession* session, const Workload& workload) {
    requireChecksum("zarn", workload, session->readAll(workload.asked));
}

// The parse alone, by `parse`.
double timeParse(const Workload& workload, const std::function<void(ZarnSession*)>& parse) {
    ZarnSession session(workload.vocabulary);
    session.parser().addOptionFileOption("more arguments", "main");
    const double seconds = timed([&] { parse(&session); });
    requireValues(&session, workload);
    return seconds;
}

double timeVector(const Peer&, const Workload& workload) {
    return timeParse(workload, [&](ZarnSession* session) { session->parse(workload.line); });
}

double timeText(const Peer&, const Workload& workload) {
    const std::string text = workload.line.lines();
    return timeParse(workload, [&](ZarnSession* session) { session->parseText(text.c_str()); });
}

double timeFile(const Peer&, const Workload& workload) {
    const std::string name = "zarn-benchmark-" + std::to_string(getpid());
    const std::filesystem::path path = std::filesystem::temp_directory_path() / name;
    std::ofstream(path) << workload.line.lines();
    CommandLine line;
    line.add("--option-file=" + path.string());
    line.finish();
    const double seconds = timeParse(workload, [&](ZarnSession* session) { session->parse(line); });
    std::filesystem::remove(path);
    return seconds;
}

// The second parse of a parser, which has its names in order already.
double timeAgain(const Peer&, const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    return timed([&] {
        session.parse(workload.line);
        requireValues(&session, workload);
    });
}

// All values of all options.
double timeWalk(const Peer&, const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    return timed([&] { requireValues(&session, workload); });
}

// The first values of all options, again and again.
double timeGets(const Peer&, const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    const std::vector<DeclaredOption>& options = workload.vocabulary.options;
    return timed([&] {
        for (std::size_t i = 0; i < workload.steps; ++i) {
            const char* name = options[i % options.size()].name.c_str();
            if (session.result().get(name, 0, wholeLine).text == nullptr) {
                throw std::runtime_error("a kept value was not found");
            }
        }
    });
}

}  // namespace

void addLibraryRuns() {
    const std::vector<Peer> self = {zarnPeer()};
    for (std::size_t options : vocabularySizes) {
        const auto given = [options](ArgumentForm form) {
            return lazily(names, options, Kind::text, form);
        };
        addRuns("again-exact", options, self, given(ArgumentForm::exact), timeAgain);
        addRuns("again-cut", options, self, given(ArgumentForm::cut), timeAgain);
    }
    constexpr std::size_t million = 1000000;
    const LazyWorkload texts = lazily(manyArguments, million, Kind::text);
    addRuns("source-vector", million, self, texts, timeVector);
    addRuns("source-text", million, self, texts, timeText);
    addRuns("source-file", million, self, texts, timeFile);
    addRuns("pieces", million, self, lazily(pieces, million), timeVector);
    for (std::size_t size : {1u << 14, 1u << 20, 1u << 24}) {
        addRuns("long-value", size, self, lazily(longValue, size), timeVector);
    }
    for (std::size_t count : argumentCounts) {
        const LazyWorkload kept = lazily(manyArguments, count, Kind::text);
        addRuns("query-next", count, self, kept, timeWalk);
        addRuns("query-get", count, self, kept, timeGets);
    }
}

}  // namespace zarn_benchmarks
