#include "platform/load_file.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/file_calls.h"

namespace TROV_2_18::system {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

enum class Outcome { succeeded, failed };

// Repeats a call of the operating system for as long as signals interrupt it.
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

class OpenFile {
public:
    explicit OpenFile(const ustring8& path)
        : descriptor_(uninterrupted([&path] { return calls::openForReading(path.c_str()); })) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (isOpen()) {
            calls::closeDescriptor(descriptor_);
        }
    }

    bool isOpen() const { return descriptor_ != -1; }

    bool readStatus(struct stat& status) const {
        return calls::statusOfDescriptor(descriptor_, &status) == 0;
    }

    // The bytes read, 0 at the end, -1 after an error.
    ssize_t read(char* buffer, std::size_t size) const {
        return uninterrupted([&] { return calls::readSome(descriptor_, buffer, size); });
    }

private:
    int descriptor_;
};

bool isLoadable(const struct stat& status) {
    if (S_ISREG(status.st_mode)) {
        return static_cast<std::uint64_t>(status.st_size) <= largestFile;
    }
    return S_ISFIFO(status.st_mode);
}

Outcome readAll(const OpenFile& file, ustring8& content) {
    constexpr std::size_t bufferSize = 32 * 1024;
    const std::unique_ptr<char[]> buffer(new char[bufferSize]);  // threads may have small stacks
    for (;;) {
        // Until there is nothing more: pipes give what they have, and files may grow or shrink
        // while they are read.
        const ssize_t got = file.read(buffer.get(), bufferSize);
        if (got <= 0) {
            return got == 0 ? Outcome::succeeded : Outcome::failed;
        }
        const std::size_t size = static_cast<std::size_t>(got);
        // No text has a NUL byte: this is no option file, and the argument would end in the middle.
        const bool hasNul = std::memchr(buffer.get(), '\0', size) != nullptr;
        if (hasNul || size > largestFile - content.size()) {
            return Outcome::failed;
        }
        content.append(buffer.get(), size);
    }
}

Outcome load(const ustring8& path, ustring8& content) {
    struct stat status {};
    // Opening alone can already do something to a device: it is looked at first.
    if (calls::statusOfPath(path.c_str(), &status) != 0 || !isLoadable(status)) {
        return Outcome::failed;
    }
    const OpenFile file(path);
    // What was looked at may not be what was opened: the path can name another file by now.
    if (!file.isOpen() || !file.readStatus(status) || !isLoadable(status)) {
        return Outcome::failed;
    }
    // A pipe has no size, and that of a file is a hint alone.
    content.reserve(S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0);
    return readAll(file, content);
}

}  // namespace

int load_file(const ustring8& path, ustring8& content) {
    ustring8 loaded;
    if (load(path, loaded) != Outcome::succeeded) {
        return 1;
    }
    if (loaded.compare(0, byteOrderMark.size(), byteOrderMark) == 0) {
        loaded.erase(0, byteOrderMark.size());
    }
    content = std::move(loaded);
    return 0;
}

std::optional<FileIdentity> identify(const ustring8& path) noexcept {
    struct stat status {};
    if (calls::statusOfPath(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace TROV_2_18::system
