#include "platform/file_calls.h"

#include <fcntl.h>
#include <unistd.h>

namespace TROV_2_18::system::calls {

int statusOfPath(const char* path, struct stat* status) noexcept { return ::stat(path, status); }

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    return ::fstat(descriptor, status);
}

int openForReading(const char* path) noexcept {
    return ::open(path, O_RDONLY | O_CLOEXEC | O_NOCTTY);
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) noexcept {
    return ::read(descriptor, buffer, size);
}

void closeDescriptor(int descriptor) noexcept { ::close(descriptor); }

}  // namespace TROV_2_18::system::calls
