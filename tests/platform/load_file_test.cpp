#include "platform/load_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

#include "platform/file_calls.h"

namespace TROV_2_18::system {
namespace {

// What the calls of the operating system are to play; otherwise they are the real ones.
struct Faults {
    int statusError = 0;            // of an open file
    mode_t statusMode = 0;          // of an open file: its kind has changed since the first look
    std::vector<int> openErrors{};  // one per call; then the real calls follow
    std::vector<int> readErrors{};  // one per call, 0 for a real call
    std::size_t longestRead = std::numeric_limits<std::size_t>::max();
    std::size_t inventedBytes = 0;  // read before those of the file
};

Faults faults;
int openFiles = 0;
int opened = 0;

int nextError(std::vector<int>& errors) {
    if (errors.empty()) {
        return 0;
    }
    const int error = errors.front();
    errors.erase(errors.begin());
    errno = error;
    return error;
}

}  // namespace

namespace calls {

int statusOfPath(const char* path, struct stat* status) noexcept { return ::stat(path, status); }

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    if (faults.statusError != 0) {
        errno = faults.statusError;
        return -1;
    }
    const int result = ::fstat(descriptor, status);
    status->st_mode = faults.statusMode != 0 ? faults.statusMode : status->st_mode;
    return result;
}

int openForReading(const char* path) noexcept {
    if (nextError(faults.openErrors) != 0) {
        return -1;
    }
    ++openFiles;
    ++opened;
    return ::open(path, O_RDONLY | O_CLOEXEC);
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) noexcept {
    if (nextError(faults.readErrors) != 0) {
        return -1;
    }
    size = std::min(size, faults.longestRead);
    if (faults.inventedBytes == 0) {
        return ::read(descriptor, buffer, size);
    }
    size = std::min(size, faults.inventedBytes);
    faults.inventedBytes -= size;
    std::fill_n(buffer, size, 'x');
    return static_cast<ssize_t>(size);
}

void closeDescriptor(int descriptor) noexcept {
    --openFiles;
    ::close(descriptor);
}

}  // namespace calls

namespace {

class LoadFile : public testing::Test {
protected:
    LoadFile() {
        faults = {};
        opened = 0;
        std::string name = testing::TempDir() + "load_file_XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~LoadFile() override {
        EXPECT_EQ(openFiles, 0);
        std::filesystem::remove_all(folder);
    }

    std::string path(const std::string& name) const { return folder / name; }

    std::string write(const std::string& content) const {
        std::ofstream(path("file"), std::ios::binary) << content;
        return path("file");
    }

    // The content, or "failed" when loading fails; it then has to leave its output alone.
    static std::string load(const std::string& file) {
        std::string content = "untouched";
        if (load_file(file, content) == 0) {
            return content;
        }
        return content == "untouched" ? "failed" : "spoilt: " + content;
    }

    std::filesystem::path folder;
};

TEST_F(LoadFile, GivesTheBytesAsTheyAre) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string halfMark = mark.substr(0, 2);
    const std::string nul(1, '\0');
    const std::string large(100000, 'a');
    const std::pair<std::string, std::string> contents[] = {
        {"",                ""              },
        {"--a\r\n--b\xFF",  "--a\r\n--b\xFF"},
        {mark,              ""              },
        {mark + mark + "a", mark + "a"      },
        {"a" + mark,        "a" + mark      },
        {halfMark,          halfMark        },
        {nul,               "failed"        },
        {large + nul + "b", "failed"        },
    };
    for (const auto& [written, expected] : contents) {
        SCOPED_TRACE(written.substr(0, 9));
        EXPECT_EQ(load(write(written)), expected);
    }
}

TEST_F(LoadFile, RefusesWhatIsNeitherFileNorPipe) {
    const std::string large = write("");
    std::filesystem::resize_file(large, largestFile + 1);
    std::filesystem::create_symlink("nowhere", path("broken link"));
    for (const std::string& refused :
         {large, path("missing"), path("broken link"), path(""), std::string("/dev/null")}) {
        EXPECT_EQ(load(refused), "failed") << refused;
    }
    EXPECT_EQ(opened, 0) << "opening alone can have effects";
}

TEST_F(LoadFile, ReadsAFifoToItsEnd) {
    ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
    const std::string text(200000, 'p');
    std::thread writer([this, &text] { std::ofstream(path("fifo")) << text; });
    EXPECT_EQ(load(path("fifo")), text);
    writer.join();
}

TEST_F(LoadFile, StopsWhenAFileGrowsBeyondTheLimit) {
    const std::string file = write("");
    for (const std::size_t excess : {std::size_t{0}, std::size_t{1}}) {
        faults.inventedBytes = largestFile + excess;
        const std::string content = load(file);
        EXPECT_EQ(content.size(), excess == 0 ? largestFile : std::string("failed").size());
    }
}

TEST_F(LoadFile, GoesOnAfterInterruptionsAndShortReads) {
    faults.openErrors = {EINTR, EINTR};
    faults.readErrors = {EINTR, 0, EINTR, EINTR, 0};
    faults.longestRead = 2;
    EXPECT_EQ(load(write("\xEF\xBB\xBFshort reads")), "short reads");
    EXPECT_TRUE(faults.readErrors.empty());
}

TEST_F(LoadFile, FailsWithTheOperatingSystem) {
    const std::string file = write("content");
    const Faults plays[] = {
        {EIO, 0,       {},       {}          },
        {0,   S_IFCHR, {},       {}          },
        {0,   0,       {EACCES}, {}          },
        {0,   0,       {},       {EIO}       },
        {0,   0,       {},       {0, EIO}    },
        {0,   0,       {},       {EINTR, EIO}},
    };
    for (const Faults& play : plays) {
        faults = play;
        EXPECT_EQ(load(file), "failed") << "row " << &play - plays;
        EXPECT_EQ(openFiles, 0) << "row " << &play - plays;
    }
}

TEST_F(LoadFile, IdentifiesAFileHoweverItIsNamed) {
    const std::string file = write("");
    std::filesystem::create_symlink(file, path("soft"));
    std::filesystem::create_hard_link(file, path("hard"));
    std::ofstream(path("other"));

    ASSERT_TRUE(identify(file).has_value());
    for (const char* name : {"soft", "hard", "./file", "/file"}) {
        EXPECT_TRUE(identify(path("") + name) == identify(file)) << name;
    }
    EXPECT_FALSE(identify(path("other")) == identify(file));
    EXPECT_FALSE(identify(path("missing")).has_value());
}

}  // namespace
}  // namespace TROV_2_18::system
