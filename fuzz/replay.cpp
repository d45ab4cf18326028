// Runs a fuzz target on inputs that were kept, without a fuzzer: replay_<target> FOLDER...

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

// The name goes out first, so that it is the last line when the input ends the program.
void replay(const std::filesystem::path& path) {
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

// Without any input it fails: a replay that has lost its corpus must not look like one that passed.
int main(int argc, char** argv) {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& input : std::filesystem::directory_iterator(argv[i])) {
            replay(input.path());
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 2;
}
