#include "memory_files.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/file_calls.h"

namespace fuzzing {
namespace {

struct File {
    std::string content;
    std::size_t position = 0;
};

std::vector<File> files;

constexpr int notFound = -1;

int indexOf(std::string_view path) {
    if (path.substr(0, 2) == "./") {
        path.remove_prefix(2);
    }
    const bool isName = path.size() == 2 && path[0] == 'f' && path[1] >= '0';
    const int index = isName ? path[1] - '0' : notFound;
    return index < static_cast<int>(files.size()) ? index : notFound;
}

File& fileAt(int index) { return files[static_cast<std::size_t>(index)]; }

int failWith(int code) {
    errno = code;
    return -1;
}

}  // namespace

void setFiles(std::vector<std::string> contents) {
    files.clear();
    for (std::string& content : contents) {
        files.push_back({std::move(content)});
    }
}

}  // namespace fuzzing

namespace TROV_2_18::system::calls {

using namespace fuzzing;

int statusOfPath(const char* path, struct stat* status) noexcept {
    if (std::string_view(path) == "dir") {
        status->st_mode = S_IFDIR;
        return 0;
    }
    const int index = indexOf(path);
    return index == notFound ? failWith(ENOENT) : statusOfDescriptor(index, status);
}

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    status->st_mode = S_IFREG;
    status->st_ino = static_cast<ino_t>(descriptor) + 1;
    status->st_size = static_cast<off_t>(fileAt(descriptor).content.size());
    return 0;
}

int openForReading(const char* path) {
    const int index = indexOf(path);
    fileAt(index).position = 0;
    return index;
}

// In short pieces, as the operating system may.
ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    constexpr std::size_t longestRead = 7;
    File& file = fileAt(descriptor);
    const std::size_t count = std::min({size, longestRead, file.content.size() - file.position});
    std::copy_n(file.content.data() + file.position, count, buffer);
    file.position += count;
    return static_cast<ssize_t>(count);
}

void closeDescriptor(int) noexcept {}

}  // namespace TROV_2_18::system::calls
