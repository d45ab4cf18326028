#include "support/file_calls_double.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#include "platform/file_calls.h"

namespace zarn_3_3::testing_support {

thread_local FileCalls fileCalls;

namespace {

struct OpenFile {
    const MemoryFile* file = nullptr;
    std::size_t read = 0;
};

thread_local std::array<OpenFile, 8> openFiles;

int fail(int error) {
    errno = error;
    return -1;
}

bool isToFail() {
    if (fileCalls.left == 0 || --fileCalls.left != 0) {
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

OpenFile* openFileOf(int descriptor) {
    const auto slot = static_cast<std::size_t>(descriptor);
    return slot < openFiles.size() && openFiles[slot].file != nullptr ? &openFiles[slot] : nullptr;
}

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
    if (isToFail()) {
        return fail(fileCalls.error);
    }
    const MemoryFile* const file = fileNamed(path);
    return file == nullptr ? fail(ENOENT) : tellStatus(*file, status);
}

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    if (isToFail()) {
        return fail(fileCalls.error);
    }
    const OpenFile* const open = openFileOf(descriptor);
    return open == nullptr ? fail(EBADF) : tellStatus(*open->file, status);
}

int openForReading(const char* path) noexcept {
    if (isToFail()) {
        return fail(fileCalls.error);
    }
    const MemoryFile* const file = fileNamed(path);
    const auto free = std::find_if(openFiles.begin(), openFiles.end(), [](const OpenFile& open) {
        return open.file == nullptr;
    });
    if (file == nullptr || free == openFiles.end()) {
        return fail(file == nullptr ? ENOENT : EMFILE);
    }
    if (file->kind == FileKind::unreadable) {
        return fail(EACCES);
    }
    *free = {file, 0};
    ++fileCalls.openFiles;
    return static_cast<int>(free - openFiles.begin());
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) noexcept {
    if (isToFail()) {
        return fail(fileCalls.error);
    }
    OpenFile* const open = openFileOf(descriptor);
    if (open == nullptr || open->file->kind == FileKind::directory) {
        return fail(open == nullptr ? EBADF : EISDIR);
    }
    const std::size_t got =
        open->file->content.copy(buffer, std::min(size, fileCalls.longestRead), open->read);
    open->read += got;
    return static_cast<ssize_t>(got);
}

void closeDescriptor(int descriptor) noexcept {
    --fileCalls.openFiles;
    OpenFile* const open = openFileOf(descriptor);
    if (open != nullptr) {
        *open = {};
    }
}

}  // namespace TROV_2_18::system::calls
