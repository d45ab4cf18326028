// The list of checksums as it stands in a file: one line for each file summed.
//
//     crc32 cbf43926  docs/some file.txt
//     \crc32 cbf43926  a name with a\nline feed
//
// A line that begins with a backslash holds a name in which backslash, line feed and carriage
// return are written as \\, \n and \r.

#ifndef ZARN_CHECKSUMS_MANIFEST_H
#define ZARN_CHECKSUMS_MANIFEST_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "checksum.h"

namespace checksums {

struct Entry {
    Algorithm algorithm = Algorithm::crc32;
    std::uint32_t checksum = 0;
    std::string name;
};

std::string formatEntry(const Entry& entry);
std::optional<Entry> parseEntry(const std::string& line);

// Both throw FileError.
std::vector<Entry> readManifest(const std::string& file);
void writeManifest(const std::string& file, const std::vector<Entry>& entries);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_MANIFEST_H
