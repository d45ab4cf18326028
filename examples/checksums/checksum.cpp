#include "checksum.h"

#include <zlib.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "parallel.h"

namespace checksums {
namespace {

namespace fs = std::filesystem;

uLong update(Algorithm algorithm, uLong sum, const char* bytes, std::size_t count) {
    const auto* data = reinterpret_cast<const Bytef*>(bytes);
    return algorithm == Algorithm::crc32 ? ::crc32_z(sum, data, count)
                                         : ::adler32_z(sum, data, count);
}

FileChecksum notRead(FileChecksum::Status status, const std::string& reason) {
    return {status, 0, reason};
}

// Opening a pipe would wait for a writer, so the kind of file is looked at first.
std::optional<FileChecksum> whyNotReadable(const std::string& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) {
        return notRead(FileChecksum::Status::missing, "no such file");
    }
    if (status.type() == fs::file_type::none) {
        return notRead(FileChecksum::Status::unreadable, error.message());
    }
    if (status.type() != fs::file_type::regular) {
        return notRead(FileChecksum::Status::unreadable, "not a regular file");
    }
    return std::nullopt;
}

}  // namespace

const char* nameOf(Algorithm algorithm) {
    return algorithm == Algorithm::crc32 ? "crc32" : "adler32";
}

std::optional<Algorithm> algorithmNamed(std::string_view name) {
    for (const Algorithm algorithm : {Algorithm::crc32, Algorithm::adler32}) {
        if (name == nameOf(algorithm)) {
            return algorithm;
        }
    }
    return std::nullopt;
}

FileChecksum checksumOf(const ChecksumRequest& request, std::size_t bufferSize) {
    if (const auto refusal = whyNotReadable(request.file)) {
        return *refusal;
    }
    std::ifstream in(request.file, std::ios::binary);
    if (!in) {
        return notRead(FileChecksum::Status::unreadable, std::generic_category().message(errno));
    }
    std::vector<char> buffer(bufferSize);
    uLong sum = update(request.algorithm, 0, nullptr, 0);
    while (in) {
        in.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        sum = update(request.algorithm, sum, buffer.data(), static_cast<std::size_t>(in.gcount()));
    }
    if (in.bad()) {
        return notRead(FileChecksum::Status::unreadable, "read error");
    }
    return {FileChecksum::Status::read, static_cast<std::uint32_t>(sum), {}};
}

std::vector<FileChecksum> checksumsOf(const std::vector<ChecksumRequest>& requests,
                                      const Reading& reading) {
    std::vector<FileChecksum> answers(requests.size());
    forEachIndex(requests.size(), reading.jobs, [&](std::size_t i) {
        answers[i] = checksumOf(requests[i], reading.bufferSize);
    });
    return answers;
}

}  // namespace checksums
