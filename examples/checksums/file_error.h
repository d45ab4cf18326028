// The failure that ends an action: a file that it cannot do without.

#ifndef ZARN_CHECKSUMS_FILE_ERROR_H
#define ZARN_CHECKSUMS_FILE_ERROR_H

#include <stdexcept>
#include <string>

namespace checksums {

class FileError final : public std::runtime_error {
public:
    FileError(const std::string& file, const std::string& reason)
        : std::runtime_error(file + ": " + reason) {}
};

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_FILE_ERROR_H
