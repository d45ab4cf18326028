// What only this library does, or must do at any size: parsing again, texts and files of arguments,
// values of many pieces or many bytes, queries.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "peers/zarn_session.h"
#include "timing.h"

namespace zarn_benchmarks {

namespace {

constexpr const char* self = "zarn";

// A file with the arguments of a workload, one a line; removed at the end.
class OptionFile {
public:
    explicit OptionFile(const std::string& text) {
        path = (std::filesystem::temp_directory_path() / "zarn-benchmark-XXXXXX").string();
        const int descriptor = mkstemp(path.data());
        std::FILE* file = descriptor < 0 ? nullptr : fdopen(descriptor, "w");
        if (file == nullptr || std::fwrite(text.data(), 1, text.size(), file) != text.size() ||
            std::fclose(file) != 0) {
            throw std::runtime_error("cannot write an option file");
        }
    }
    ~OptionFile() { std::filesystem::remove(path); }
    OptionFile(const OptionFile&) = delete;
    OptionFile& operator=(const OptionFile&) = delete;

    std::string argument() const { return "--option-file=" + path; }

private:
    std::string path;
};

void requireValues(ZarnSession* session, const Workload& workload) {
    Checksum sum;
    session->read(workload.asked, &sum);
    requireChecksum(self, workload, sum.value());
}

double timeVector(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    const double seconds = timed([&] { session.parse(workload.line); });
    requireValues(&session, workload);
    return seconds;
}

double timeText(const Workload& workload) {
    const std::string text = workload.line.lines();
    ZarnSession session(workload.vocabulary);
    const double seconds = timed([&] { session.parseText(text.c_str()); });
    requireValues(&session, workload);
    return seconds;
}

double timeFile(const Workload& workload) {
    const OptionFile file(workload.line.lines());
    ZarnSession session(workload.vocabulary);
    session.parser().addOptionFileOption("more arguments", "main");
    CommandLine line;
    line.add(file.argument());
    line.finish();
    const double seconds = timed([&] { session.parse(line); });
    requireValues(&session, workload);
    return seconds;
}

// The second parse of a parser, which has its names in order already.
double timeAgain(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    Checksum sum;
    const double seconds = timed([&] {
        session.parse(workload.line);
        session.read(workload.asked, &sum);
    });
    requireChecksum(self, workload, sum.value());
    return seconds;
}

// All values of all options.
double timeWalk(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    return timed([&] { requireValues(&session, workload); });
}

// The first values of all options, again and again.
double timeGets(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    const std::vector<DeclaredOption>& options = workload.vocabulary.options;
    std::size_t found = 0;
    const double seconds = timed([&] {
        for (std::size_t i = 0; i < workload.steps; ++i) {
            const char* name = options[i % options.size()].name.c_str();
            found += session.result().get(name, 0, wholeLine).text != nullptr ? 1 : 0;
        }
    });
    if (found != workload.steps) {
        throw std::runtime_error("a kept value was not found");
    }
    return seconds;
}

void addNames(const std::string& name, NameForm form) {
    for (std::size_t options : vocabularySizes) {
        const LazyWorkload given = lazily([=] { return names(options, Kind::text, form); });
        addRun(name, options, self, given, timeAgain);
    }
}

void addSources(std::size_t count) {
    const LazyWorkload texts = lazily([=] { return manyArguments(count, Kind::text); });
    addRun("source-vector", count, self, texts, timeVector);
    addRun("source-text", count, self, texts, timeText);
    addRun("source-file", count, self, texts, timeFile);
}

void addValues() {
    for (std::size_t count : argumentCounts) {
        addRun("pieces", count, self, lazily([=] { return pieces(count); }), timeVector);
    }
    for (std::size_t size : {std::size_t{1} << 14, std::size_t{1} << 20, std::size_t{1} << 24}) {
        addRun("long-value", size, self, lazily([=] { return longValue(size); }), timeVector);
    }
}

void addQueries() {
    for (std::size_t count : argumentCounts) {
        const LazyWorkload kept = lazily([=] { return manyArguments(count, Kind::text); });
        addRun("query-next", count, self, kept, timeWalk);
        addRun("query-get", count, self, kept, timeGets);
    }
}

}  // namespace

void addLibraryRuns() {
    addNames("again-exact", NameForm::exact);
    addNames("again-cut", NameForm::cut);
    addSources(argumentCounts[2]);
    addValues();
    addQueries();
}

}  // namespace zarn_benchmarks
