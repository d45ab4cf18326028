// Everything that the library takes from outside fails: memory, allocation by allocation, and the
// reading of files, call by call.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include <unistd.h>

#include "file_faults.h"
#include "memory_faults.h"
#include "support/expectation.h"
#include "world.h"

namespace zarn_3_3::faults {
namespace {

namespace fs = std::filesystem;

// Something that waits for ever ends the program.
constexpr unsigned longestRun = 900;

class ScratchFolder {
public:
    ScratchFolder() {
        std::string made = (fs::temp_directory_path() / "zarn-faults-XXXXXX").string();
        if (mkdtemp(made.data()) == nullptr) {
            throw fs::filesystem_error("no scratch folder", std::error_code());
        }
        path = made;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        fs::current_path("/");
        fs::remove_all(path);
    }

    std::string path;
};

void disturbAll(const char* group, const Scenarios& scenarios, Tally& all) {
    Tally tally;
    for (const Scenario& scenario : scenarios) {
        disturb(scenario, tally);
    }
    std::printf("%7ld failed allocations in %ld of %zu scenarios: %s\n",
                tally.failures,
                tally.scenarios,
                scenarios.size(),
                group);
    all.scenarios += tally.scenarios;
    all.failures += tally.failures;
}

int runAll() {
    const ScratchFolder folder;
    // The log and the warnings are written, but take no memory for that.
    Discarding discarding;
    std::streambuf* const out = std::cout.rdbuf(&discarding);
    std::streambuf* const err = std::cerr.rdbuf(&discarding);

    Tally all;
    disturbAll("declarations", declarationScenarios(), all);
    disturbAll("lines", lineScenarios(), all);
    disturbAll("handlers", handlerScenarios(), all);
    disturbAll("option files", optionFileScenarios(folder.path), all);
    disturbAll("help and queries", readingScenarios(), all);
    disturbAll("others", otherScenarios(), all);
    checking::expect(all.scenarios >= 40 && all.failures >= 300, "memory hardly ever failed");

    const long calls = disturbFileCalls(folder.path);
    const long kinds = loadEveryKind(folder.path);
    std::printf("%7ld failed file calls, %ld kinds of files\n", calls, kinds);
    std::cout.rdbuf(out);
    std::cerr.rdbuf(err);
    return checking::conclude(std::to_string(all.failures + calls) + " failures injected, " +
                              std::to_string(all.scenarios) + " scenarios without memory");
}

}  // namespace
}  // namespace zarn_3_3::faults

int main() {
    alarm(zarn_3_3::faults::longestRun);
    return zarn_3_3::faults::runAll();
}
