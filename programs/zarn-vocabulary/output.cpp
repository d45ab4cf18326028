#include "output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace vocabulary {
namespace {

namespace fs = std::filesystem;

// What was tried last has left errno.
[[noreturn]] void fail(const std::string& what) {
    const std::error_code why(errno, std::generic_category());
    throw std::runtime_error(what + " cannot be written: " + why.message());
}

int openForWriting(const fs::path& path, int flags) {
    return ::open(path.c_str(), O_WRONLY | O_CLOEXEC | flags, 0666);
}

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        text.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return true;
}

// False with errno. Some file systems say only in the end that there is no room.
bool writeAndClose(int file, std::string_view text) {
    if (!writeAll(file, text)) {
        const int why = errno;
        ::close(file);
        errno = why;
        return false;
    }
    return ::close(file) == 0;
}

// Opens a file of a name that is free, and leaves that in `path`; negative with errno.
int openFresh(const fs::path& directory, fs::path& path) {
    int file = -1;
    for (int attempt = 0; file < 0 && (attempt == 0 || errno == EEXIST); ++attempt) {
        const std::string number = std::to_string(::getpid()) + "-" + std::to_string(attempt);
        path = directory / (".zarn-vocabulary-" + number);
        file = openForWriting(path, O_CREAT | O_EXCL);
    }
    return file;
}

void replace(const fs::path& path, const std::string& text, const std::string& what) {
    fs::path fresh;
    const int file = openFresh(path.parent_path(), fresh);
    if (file < 0) {
        fail(what);
    }
    if (!writeAndClose(file, text) || std::rename(fresh.c_str(), path.c_str()) != 0) {
        const int why = errno;
        ::unlink(fresh.c_str());
        errno = why;
        fail(what);
    }
}

}  // namespace

void writeToStandardOutput(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() ||
        std::fflush(stdout) != 0) {
        fail("the standard output");
    }
}

void writeToFile(const std::string& path, const std::string& text) {
    const std::string what = "the file '" + path + "'";
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status)) {
        replace(path, text, what);
    } else if (fs::is_regular_file(status)) {
        replace(fs::canonical(path), text, what);
    } else {
        const int file = openForWriting(path, 0);
        if (file < 0 || !writeAndClose(file, text)) {
            fail(what);
        }
    }
}

}  // namespace vocabulary
