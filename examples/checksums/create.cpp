#include <string>
#include <vector>

#include "actions.h"
#include "file_list.h"
#include "manifest.h"

namespace checksums {
namespace {

std::vector<FileChecksum> sum(const std::vector<std::string>& files, const Command& command) {
    std::vector<ChecksumRequest> requests;
    requests.reserve(files.size());
    for (const std::string& file : files) {
        requests.push_back({file, command.algorithm});
    }
    return checksumsOf(requests, command.reading);
}

}  // namespace

ExitCode createManifest(const Command& command, const Results& results) {
    const FileList found = findFiles(command.names, command.manifest);
    ExitCode code = exitOk;
    for (const std::string& problem : found.problems) {
        printError(problem);
        code = exitFile;
    }

    const std::vector<FileChecksum> sums = sum(found.files, command);
    std::vector<Entry> entries;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        if (sums[i].status == FileChecksum::Status::read) {
            entries.push_back({command.algorithm, sums[i].value, found.files[i]});
        } else {
            printError(found.files[i] + ": " + sums[i].reason);
            code = exitFile;
        }
    }
    if (entries.empty()) {
        printError("No files to sum; '" + command.manifest + "' is left as it was.");
        return exitFile;
    }
    writeManifest(command.manifest, entries);
    results.printSummary(command.manifest + ": " + std::to_string(entries.size()) + " summed");
    return code;
}

}  // namespace checksums
