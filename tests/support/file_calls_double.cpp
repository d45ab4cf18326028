#include "support/file_calls_double.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

#include "platform/file_calls.h"

namespace zarn_3_3::testing_support {

thread_local FileCalls fileCalls;

namespace {

// The library has one file open at a time.
constexpr int onlyDescriptor = 7;
thread_local const MemoryFile* openFile = nullptr;
thread_local std::size_t bytesRead = 0;

int fail(int error) {
    errno = error;
    return -1;
}

// Asking for a status waits for nothing that a signal could interrupt.
bool isToFail(bool waits) {
    const bool isSpared = fileCalls.error == EINTR && !waits;
    if (isSpared || fileCalls.left == 0 || --fileCalls.left != 0) {
        return false;
    }
    fileCalls.hasStruck = true;
    fileCalls.left = fileCalls.isLasting ? 1 : 0;
    return true;
}

const MemoryFile* fileNamed(const char* path) {
    const auto found = fileCalls.files.find(path);
    return found == fileCalls.files.end() ? nullptr : found->second.get();
}

bool isOpen(int descriptor) { return descriptor == onlyDescriptor && openFile != nullptr; }

mode_t modeOf(FileKind kind) {
    switch (kind) {
        case FileKind::pipe:
            return S_IFIFO;
        case FileKind::directory:
            return S_IFDIR;
        case FileKind::device:
            return S_IFCHR;
        default:
            return S_IFREG;
    }
}

int tellStatus(const MemoryFile& file, struct stat* status) {
    const std::size_t size = file.content.size();
    const bool hasSize = modeOf(file.kind) == S_IFREG;
    *status = {};
    status->st_dev = 1;
    status->st_ino = reinterpret_cast<std::uintptr_t>(&file);
    status->st_mode = modeOf(file.kind);
    status->st_size =
        hasSize ? static_cast<off_t>(file.kind == FileKind::growing ? size / 2 : size) : 0;
    return 0;
}

}  // namespace
}  // namespace zarn_3_3::testing_support

namespace TROV_2_18::system::calls {

using namespace zarn_3_3::testing_support;

int statusOfPath(const char* path, struct stat* status) noexcept {
    const MemoryFile* const file = fileNamed(path);
    if (isToFail(false) || file == nullptr) {
        return fail(file != nullptr ? fileCalls.error : ENOENT);
    }
    return tellStatus(*file, status);
}

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    if (isToFail(false) || !isOpen(descriptor)) {
        return fail(isOpen(descriptor) ? fileCalls.error : EBADF);
    }
    return tellStatus(*openFile, status);
}

int openForReading(const char* path) {
    const MemoryFile* const file = fileNamed(path);
    if (isToFail(true) || file == nullptr) {
        return fail(file != nullptr ? fileCalls.error : ENOENT);
    }
    if (file->kind == FileKind::unreadable) {
        return fail(EACCES);
    }
    openFile = file;
    bytesRead = 0;
    ++fileCalls.openFiles;
    return onlyDescriptor;
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    if (isToFail(true) || !isOpen(descriptor)) {
        return fail(isOpen(descriptor) ? fileCalls.error : EBADF);
    }
    const std::size_t wanted = std::min(size, fileCalls.longestRead);
    const std::size_t got = openFile->content.copy(buffer, wanted, bytesRead);
    bytesRead += got;
    return static_cast<ssize_t>(got);
}

void closeDescriptor(int descriptor) noexcept {
    fileCalls.openFiles -= isOpen(descriptor) ? 1 : 1000;
    openFile = nullptr;
}

}  // namespace TROV_2_18::system::calls
