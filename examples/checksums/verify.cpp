#include <algorithm>
#include <string>
#include <vector>

#include "actions.h"
#include "file_error.h"
#include "manifest.h"

namespace checksums {
namespace {

struct Tally {
    std::size_t ok = 0;
    std::size_t changed = 0;
    std::size_t missing = 0;
    std::size_t unreadable = 0;

    ExitCode code() const {
        if (unreadable != 0) {
            return exitFile;
        }
        return changed + missing != 0 ? exitDifferences : exitOk;
    }

    std::string text() const {
        return std::to_string(ok) + " OK, " + std::to_string(changed) + " changed, " +
               std::to_string(missing) + " missing, " + std::to_string(unreadable) + " unreadable";
    }
};

std::vector<FileChecksum> sumAgain(const std::vector<Entry>& entries, const Reading& reading) {
    std::vector<ChecksumRequest> requests;
    requests.reserve(entries.size());
    for (const Entry& entry : entries) {
        requests.push_back({entry.name, entry.algorithm});
    }
    return checksumsOf(requests, reading);
}

void judge(const Entry& entry, const FileChecksum& now, const Results& results, Tally& tally) {
    if (now.status == FileChecksum::Status::missing) {
        ++tally.missing;
        results.print(entry.name, "MISSING", Mark::bad);
    } else if (now.status == FileChecksum::Status::unreadable) {
        ++tally.unreadable;
        printError(entry.name + ": " + now.reason);
    } else if (now.value != entry.checksum) {
        ++tally.changed;
        results.print(entry.name, "CHANGED", Mark::bad);
    } else {
        ++tally.ok;
        results.print(entry.name, "OK", Mark::good);
    }
}

}  // namespace

ExitCode verifyManifest(const Command& command, const Results& results) {
    const std::vector<Entry> entries = readManifest(command.manifest);
    const std::vector<FileChecksum> sums = sumAgain(entries, command.reading);
    Tally tally;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const bool isMissing = sums[i].status == FileChecksum::Status::missing;
        if (!isMissing || !command.ignoreMissing) {
            judge(entries[i], sums[i], results, tally);
        }
    }
    const bool nothingJudged = tally.ok + tally.changed + tally.missing + tally.unreadable == 0;
    if (nothingJudged) {
        throw FileError(command.manifest, "no file was verified");
    }
    results.printSummary(command.manifest + ": " + tally.text());
    return tally.code();
}

}  // namespace checksums
