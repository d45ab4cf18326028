#include "file_calls_double.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/file_calls.h"

namespace zarn_3_3::faults {

FileCalls fileCalls;

namespace {

enum class Call { brief, interruptible };

bool fails(Call call) {
    if (fileCalls.left == 0 || --fileCalls.left != 0) {
        return false;
    }
    fileCalls.hasStruck = true;
    fileCalls.isInterruptible = call == Call::interruptible;
    fileCalls.left = fileCalls.isLasting ? 1 : 0;
    errno = fileCalls.error;
    return true;
}

}  // namespace
}  // namespace zarn_3_3::faults

namespace TROV_2_18::system::calls {

using zarn_3_3::faults::Call;
using zarn_3_3::faults::fails;
using zarn_3_3::faults::fileCalls;

int statusOfPath(const char* path, struct stat* status) noexcept {
    return fails(Call::brief) ? -1 : ::stat(path, status);
}

int statusOfDescriptor(int descriptor, struct stat* status) noexcept {
    const int result = fails(Call::brief) ? -1 : ::fstat(descriptor, status);
    if (fileCalls.beforeReading) {
        fileCalls.beforeReading();
    }
    return result;
}

int openForReading(const char* path) {
    const int descriptor =
        fails(Call::interruptible) ? -1 : ::open(path, O_RDONLY | O_CLOEXEC | O_NOCTTY);
    fileCalls.openFiles += descriptor != -1 ? 1 : 0;
    return descriptor;
}

ssize_t readSome(int descriptor, char* buffer, std::size_t size) {
    return fails(Call::interruptible)
               ? -1
               : ::read(descriptor, buffer, std::min(size, fileCalls.longestRead));
}

void closeDescriptor(int descriptor) noexcept {
    --fileCalls.openFiles;
    ::close(descriptor);
}

}  // namespace TROV_2_18::system::calls
