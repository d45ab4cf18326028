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

template <typename Step>
double timeStep(const Step& step) {
    const Stopwatch watch;
    step();
    return watch.seconds();
}

double timeVector(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    const double seconds = timeStep([&] { session.parse(workload.line); });
    requireValues(&session, workload);
    return seconds;
}

double timeText(const Workload& workload, const std::string& text) {
    ZarnSession session(workload.vocabulary);
    const double seconds = timeStep([&] { session.parseText(text.c_str()); });
    requireValues(&session, workload);
    return seconds;
}

double timeFile(const Workload& workload, const OptionFile& file) {
    ZarnSession session(workload.vocabulary);
    session.parser().addOptionFileOption("more arguments", "main");
    CommandLine line;
    line.add(file.argument());
    line.finish();
    const double seconds = timeStep([&] { session.parse(line); });
    requireValues(&session, workload);
    return seconds;
}

// The second parse of a parser, which has its names in order already.
double timeAgain(const Workload& workload) {
    ZarnSession session(workload.vocabulary);
    session.parse(workload.line);
    Checksum sum;
    const double seconds = timeStep([&] {
        session.parse(workload.line);
        session.read(workload.asked, &sum);
    });
    requireChecksum(self, workload, sum.value());
    return seconds;
}

void addSecondParses() {
    for (std::size_t options : vocabularySizes) {
        const LazyWorkload exact([=] { return names(options, Kind::text, NameForm::exact); });
        addRun(
            "again-exact", options, self, namesGiven, [exact] { return timeAgain(exact.get()); });
        const LazyWorkload cut([=] { return names(options, Kind::text, NameForm::cut); });
        addRun("again-cut", options, self, namesGiven, [cut] { return timeAgain(cut.get()); });
    }
}

void addSources(std::size_t count) {
    const LazyWorkload lazy([=] { return manyArguments(count, Kind::text); });
    addRun("source-vector", count, self, count, [lazy] { return timeVector(lazy.get()); });
    addRun("source-text", count, self, count, [lazy, text = std::string()]() mutable {
        if (text.empty()) {
            text = lazy.get().line.lines();
        }
        return timeText(lazy.get(), text);
    });
    addRun(
        "source-file", count, self, count, [lazy, file = std::shared_ptr<OptionFile>()]() mutable {
            if (file == nullptr) {
                file = std::make_shared<OptionFile>(lazy.get().line.lines());
            }
            return timeFile(lazy.get(), *file);
        });
}

void addValues() {
    for (std::size_t count : argumentCounts) {
        const LazyWorkload lazy([=] { return pieces(count); });
        addRun("pieces", count, self, count, [lazy] { return timeVector(lazy.get()); });
    }
    for (std::size_t size : {std::size_t{1} << 14, std::size_t{1} << 20, std::size_t{1} << 24}) {
        const LazyWorkload lazy([=] { return longValue(size); });
        addRun("long-value", size, self, size, [lazy] { return timeVector(lazy.get()); });
    }
}

// All values of all options, while `count` texts are kept.
double timeWalk(ZarnSession* session, const Workload& workload) {
    Checksum sum;
    const double seconds = timeStep([&] { session->read(workload.asked, &sum); });
    requireChecksum(self, workload, sum.value());
    return seconds;
}

// The first values of all options, again and again.
double timeGets(ZarnSession* session, const Workload& workload, std::size_t gets) {
    const std::vector<DeclaredOption>& options = workload.vocabulary.options;
    std::size_t found = 0;
    const double seconds = timeStep([&] {
        for (std::size_t i = 0; i < gets; ++i) {
            const char* name = options[i % options.size()].name.c_str();
            found += session->result().get(name, 0, wholeLine).text != nullptr ? 1 : 0;
        }
    });
    if (found != gets) {
        throw std::runtime_error("a kept value was not found");
    }
    return seconds;
}

void addQueries() {
    constexpr std::size_t gets = 10000;
    for (std::size_t count : argumentCounts) {
        const LazyWorkload lazy([=] { return manyArguments(count, Kind::text); });
        const auto session = std::make_shared<std::unique_ptr<ZarnSession>>();
        const auto parsed = [lazy, session] {
            if (*session == nullptr) {
                *session = std::make_unique<ZarnSession>(lazy.get().vocabulary);
                (*session)->parse(lazy.get().line);
            }
            return session->get();
        };
        addRun("query-next", count, self, count, [=] { return timeWalk(parsed(), lazy.get()); });
        addRun(
            "query-get", count, self, gets, [=] { return timeGets(parsed(), lazy.get(), gets); });
    }
}

}  // namespace

}  // namespace zarn_benchmarks

int main(int argc, char** argv) {
    using namespace zarn_benchmarks;
    addSecondParses();
    addSources(1000000);
    addValues();
    addQueries();
    return runAll(argc, argv);
}
