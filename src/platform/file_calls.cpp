#include "platform/file_calls.h"

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

namespace TROV_2_18::system::calls {

int statusOfPath(const char* path, struct stat* status) noexcept { return ::stat(path, status); }

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    return ::fstat(descriptor, status);
}

// Not inherited by programs that the tool starts; and a terminal that a path names does not take
// over the process.
int openForReading(const char* path) { return ::open(path, O_RDONLY | O_CLOEXEC | O_NOCTTY); }

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    return ::read(descriptor, buffer, size);
}

void closeDescriptor(int descriptor) noexcept {
    // A descriptor whose closing is cancelled may be open or not: nobody could tell what to do with
    // it.
    int before = 0;
    ::pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before);
    ::close(descriptor);
    ::pthread_setcancelstate(before, nullptr);
}

}  // namespace TROV_2_18::system::calls
