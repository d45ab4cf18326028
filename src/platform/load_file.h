// Reading whole files, and telling whether two paths name the same one.

#ifndef ZARN_PLATFORM_LOAD_FILE_H
#define ZARN_PLATFORM_LOAD_FILE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace TROV_2_18 {

using ustring8 = std::string;

namespace system {

// More than this is no option file but a mistake.
constexpr std::size_t largestFile = std::size_t{256} * 1024 * 1024;

// Reads a regular file or everything that is written into a pipe; a FIFO waits for its writer.
//
// Returns 0 on success. A byte order mark at the start is dropped. Anything else than files and
// pipes, a read error, more than `largestFile` bytes or a NUL byte is a failure and leaves
// `content` unchanged. Throws std::bad_alloc.
int load_file(const ustring8& path, ustring8& content);

// What a path really names, whatever links lead there and however it is spelled.
struct FileIdentity {
    std::uint64_t device;
    std::uint64_t inode;

    friend bool operator==(const FileIdentity& left, const FileIdentity& right) noexcept {
        return left.device == right.device && left.inode == right.inode;
    }
};

// Nothing when the path names nothing that can be reached.
std::optional<FileIdentity> identify(const ustring8& path) noexcept;

}  // namespace system
}  // namespace TROV_2_18

#endif  // ZARN_PLATFORM_LOAD_FILE_H
