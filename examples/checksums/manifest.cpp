#include "manifest.h"

#include <cerrno>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <system_error>

#include "file_error.h"
#include "name_escape.h"

namespace checksums {
namespace {

constexpr std::size_t checksumDigits = 8;
constexpr const char* nameSeparator = "  ";

std::string systemReason() { return std::generic_category().message(errno); }

std::optional<std::uint32_t> parseChecksum(const std::string& digits) {
    const char* end = digits.data() + digits.size();
    std::uint32_t checksum = 0;
    const auto [stop, error] = std::from_chars(digits.data(), end, checksum, 16);
    if (digits.size() != checksumDigits || error != std::errc() || stop != end) {
        return std::nullopt;
    }
    return checksum;
}

}  // namespace

std::string formatEntry(const Entry& entry) {
    std::ostringstream line;
    line << (needsEscape(entry.name) ? "\\" : "") << nameOf(entry.algorithm) << ' ' << std::hex
         << std::setw(checksumDigits) << std::setfill('0') << entry.checksum << nameSeparator
         << escapeName(entry.name);
    return line.str();
}

std::optional<Entry> parseEntry(const std::string& line) {
    const bool escaped = !line.empty() && line.front() == '\\';
    const std::size_t start = escaped ? 1 : 0;
    const std::size_t blank = line.find(' ', start);
    const std::size_t separator = line.find(nameSeparator, start);
    if (separator == std::string::npos || separator <= blank) {
        return std::nullopt;
    }
    const auto algorithm = algorithmNamed(line.substr(start, blank - start));
    const auto checksum = parseChecksum(line.substr(blank + 1, separator - blank - 1));
    const std::string text = line.substr(separator + 2);
    const auto name = escaped ? unescapeName(text) : text;
    if (!algorithm || !checksum || !name || name->empty()) {
        return std::nullopt;
    }
    return Entry{*algorithm, *checksum, *name};
}

std::vector<Entry> readManifest(const std::string& file) {
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        throw FileError(file, "is a folder");
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw FileError(file, systemReason());
    }
    std::vector<Entry> entries;
    std::string line;
    for (std::size_t number = 1; std::getline(in, line); ++number) {
        // Only editors write this one: in a name it is escaped.
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const auto entry = parseEntry(line);
        if (!entry) {
            throw FileError(file, "line " + std::to_string(number) + " holds no checksum");
        }
        entries.push_back(*entry);
    }
    if (in.bad()) {
        throw FileError(file, "read error");
    }
    return entries;
}

void writeManifest(const std::string& file, const std::vector<Entry>& entries) {
    std::ofstream out(file, std::ios::binary);
    if (!out) {
        throw FileError(file, systemReason());
    }
    for (const Entry& entry : entries) {
        out << formatEntry(entry) << '\n';
    }
    out.close();
    if (!out) {
        throw FileError(file, "write error");
    }
}

}  // namespace checksums
