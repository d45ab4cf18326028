// Hostile clients and moments, in one process.

#include "hostile.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "support/expectation.h"

namespace zarn_3_3::hostile {
namespace {

namespace fs = std::filesystem;

void print(const char* what, long cases) { std::printf("%7ld %s\n", cases, what); }

int runAll(const std::string& folder) {
    print("broken arguments", passBrokenArguments());
    print("huge arguments", passHugeArguments());
    print("sets of endless files", readFilesWithoutEnd(folder));
    print("deeds inside events", actInsideEvents(folder));
    print("parses at the end of the sequence", useUpTheSequence());
    print("orders of destruction", destroyInAnyOrder());
    print("texts kept", keepManyTexts());
    print("broken streams", writeToBrokenStreams());
    return checking::conclude("hostile clients");
}

}  // namespace
}  // namespace zarn_3_3::hostile

int main() {
    constexpr unsigned longestRun = 600;  // something that waits for ever ends the program
    alarm(longestRun);
    std::string folder = (std::filesystem::temp_directory_path() / "zarn-hostile-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) {
        std::perror("no scratch folder");
        return 2;
    }
    std::filesystem::current_path(folder);
    const int code = zarn_3_3::hostile::runAll(folder);
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder);
    return code;
}
