#include "platform/load_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "platform/file_calls.h"

namespace TROV_2_18::system {
namespace {

// What the calls of the operating system are to play; otherwise they are the real ones.
struct Faults {
    mode_t statusMode = 0;          // of an open file: its kind has changed since the first look
    std::size_t inventedBytes = 0;  // read before those of the file
};

Faults faults;
int openFiles = 0;
int opened = 0;

}  // namespace

namespace calls {

int statusOfPath(const char* path, struct stat* status) noexcept { return ::stat(path, status); }

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    const int result = ::fstat(descriptor, status);
    status->st_mode = faults.statusMode != 0 ? faults.statusMode : status->st_mode;
    return result;
}

int openForReading(const char* path) {
    ++opened;
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC);
    openFiles += descriptor != -1 ? 1 : 0;
    return descriptor;
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    if (faults.inventedBytes == 0) {
        return ::read(descriptor, buffer, size);
    }
    size = std::min(size, faults.inventedBytes);
    faults.inventedBytes -= size;
    std::memset(buffer, 'x', size);
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
        folder = ::mkdtemp(name.data()) + std::string("/");
        write("");
    }
    ~LoadFile() override { std::filesystem::remove_all(folder); }

    void write(const std::string& content) {
        std::ofstream(folder + "file", std::ios::binary) << content;
    }

    // The content, or "failed" when loading fails; it then has to leave its output alone.
    std::string load(const std::string& name) {
        std::string content = "failed";
        const bool isLoaded = load_file(folder + name, content) == 0;
        EXPECT_TRUE(isLoaded || content == "failed");
        EXPECT_EQ(openFiles, 0);
        return content;
    }

    std::string folder;
};

TEST_F(LoadFile, GivesTheBytesAsTheyAre) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string large(100000, 'a');
    const std::pair<std::string, std::string> contents[] = {
        {"--a\r\n--b\xFF",  "--a\r\n--b\xFF"},
        {mark + mark + "a", mark + "a"      },
        {large + '\0',      "failed"        },
    };
    for (const auto& [written, expected] : contents) {
        write(written);
        EXPECT_EQ(load("file"), expected);
    }
}

TEST_F(LoadFile, RefusesWhatIsNeitherFileNorPipe) {
    std::filesystem::resize_file(folder + "file", largestFile + 1);
    std::filesystem::create_symlink("/dev/null", folder + "device");
    for (const char* name : {"file", "missing", "", "device"}) {
        EXPECT_EQ(load(name), "failed") << name;
    }
    EXPECT_EQ(opened, 0) << "opening alone can have effects";
}

TEST_F(LoadFile, FailsWhenAFileChangesMeanwhile) {
    write("");
    for (const std::size_t excess : {0U, 1U}) {
        faults.inventedBytes = largestFile + excess;
        EXPECT_EQ(load("file").size(), excess == 0 ? largestFile : std::strlen("failed"));
    }
    faults.statusMode = S_IFCHR;
    EXPECT_EQ(load("file"), "failed");
}

}  // namespace
}  // namespace TROV_2_18::system
