// The checksum of one file, and of many files at once.

#ifndef ZARN_CHECKSUMS_CHECKSUM_H
#define ZARN_CHECKSUMS_CHECKSUM_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace checksums {

enum class Algorithm { crc32, adler32 };

const char* nameOf(Algorithm algorithm);
std::optional<Algorithm> algorithmNamed(std::string_view name);

// How files are read: the result is the same, the time is not.
struct Reading {
    std::size_t bufferSize = 65536;
    unsigned jobs = 1;
};

struct ChecksumRequest {
    std::string file;
    Algorithm algorithm = Algorithm::crc32;
};

struct FileChecksum {
    enum class Status { read, missing, unreadable };

    Status status = Status::unreadable;
    std::uint32_t value = 0;  // when it was read
    std::string reason;       // when it was not
};

FileChecksum checksumOf(const ChecksumRequest& request, std::size_t bufferSize);

// The answers in the order of the requests, worked out by up to `reading.jobs` threads.
std::vector<FileChecksum> checksumsOf(const std::vector<ChecksumRequest>& requests,
                                      const Reading& reading);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_CHECKSUM_H
