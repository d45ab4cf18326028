#include "support/file_calls_double.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

#include "platform/assertion.h"
#include "platform/file_calls.h"
#include "platform/load_file.h"

namespace zarn_3_3::testing_support {

thread_local FileCalls fileCalls;

namespace {

// The library has one file open at a time.
constexpr int onlyDescriptor = 7;
thread_local const MemoryFile* openFile = nullptr;
thread_local std::size_t bytesRead = 0;

// The failure of a call, 0 when it succeeds. Asking for a status waits for nothing that a signal
// could interrupt.
int failure(const MemoryFile* file, int errorWithoutFile, bool waits = false) {
    const bool isSpared = fileCalls.error == EINTR && !waits;
    const bool strikes = !isSpared && fileCalls.strikes();
    errno = file == nullptr ? errorWithoutFile : strikes ? fileCalls.error : errno;
    return file == nullptr || strikes ? -1 : 0;
}

const MemoryFile* fileNamed(const char* path) {
    const auto found = fileCalls.files.find(path);
    return found == fileCalls.files.end() ? nullptr : found->second.get();
}

bool isReadable(const MemoryFile& file) {
    return file.kind != "directory" && file.kind != "device" && file.kind != "huge";
}

const MemoryFile* fileAt(int descriptor) {
    return descriptor == onlyDescriptor ? openFile : nullptr;
}

mode_t modeOf(const std::string& kind) {
    return kind == "pipe"        ? S_IFIFO
           : kind == "directory" ? S_IFDIR
           : kind == "device"    ? S_IFCHR
                                 : S_IFREG;
}

std::size_t sizeOf(const MemoryFile& file) {
    return file.kind == "growing" ? file.content.size() / 2
           : file.kind == "huge"  ? TROV_2_18::system::largestFile + 1
                                  : file.content.size();
}

int tellStatus(const MemoryFile* file, int errorWithoutFile, struct stat* status) {
    if (failure(file, errorWithoutFile) != 0) {
        return -1;
    }
    *status = {};
    status->st_dev = 1;
    status->st_ino = reinterpret_cast<std::uintptr_t>(file);
    status->st_mode = modeOf(file->kind);
    status->st_size = S_ISREG(status->st_mode) ? static_cast<off_t>(sizeOf(*file)) : 0;
    return 0;
}

}  // namespace
}  // namespace zarn_3_3::testing_support

namespace TROV_2_18::system::calls {

using namespace zarn_3_3::testing_support;

int statusOfPath(const char* path, struct stat* status) noexcept {
    return tellStatus(fileNamed(path), ENOENT, status);
}

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    const MemoryFile* const file = fileAt(descriptor);
    const int answer = tellStatus(file, EBADF, status);
    status->st_mode = answer == 0 && file->kind == "changing" ? S_IFCHR : status->st_mode;
    return answer;
}

int openForReading(const char* path) {
    const MemoryFile* const file = fileNamed(path);
    if (failure(file, ENOENT, true) != 0) {
        return -1;
    }
    if (!isReadable(*file)) {
        debugAssertionFailed("opening alone can have effects");
    }
    if (file->kind == "unreadable") {
        errno = EACCES;
        return -1;
    }
    openFile = file;
    bytesRead = 0;
    ++fileCalls.openFiles;
    return onlyDescriptor;
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    const MemoryFile* const file = fileAt(descriptor);
    if (failure(file, EBADF, true) != 0) {
        return -1;
    }
    const std::size_t wanted = std::min(size, fileCalls.longestRead);
    const std::size_t got = file->content.copy(buffer, wanted, bytesRead);
    bytesRead += got;
    return static_cast<ssize_t>(got);
}

void closeDescriptor(int descriptor) noexcept {
    fileCalls.openFiles -= fileAt(descriptor) != nullptr ? 1 : 1000;
    openFile = nullptr;
}

}  // namespace TROV_2_18::system::calls
