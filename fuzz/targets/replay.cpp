// Runs a fuzz target on inputs that were kept, without a fuzzer.
//
//     replay_<target> PATH...
//
// A path is an input, or a folder of inputs, which need not exist. Without any input it fails: a
// replay that has lost its corpus must not look like one that passed.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsAt(const fs::path& path) {
    if (!fs::is_directory(path)) {
        return fs::exists(path) ? std::vector<fs::path>{path} : std::vector<fs::path>{};
    }
    std::vector<fs::path> inputs{fs::directory_iterator(path), {}};
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

// The name goes out first, so that it is the last line when the input ends the program.
void replay(const fs::path& path) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

int replayAll(int argc, char** argv) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& path : inputsAt(argv[i])) {
            replay(path);
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return replayAll(argc, argv);
    } catch (const std::exception& caught) {
        std::fprintf(stderr, "%s\n", caught.what());
        return 2;
    }
}
