// The calls of the operating system that reading a file takes, as they are: errors come back as -1
// with errno, interruptions too. Tests replace this file at link time to play faults.

#ifndef ZARN_PLATFORM_FILE_CALLS_H
#define ZARN_PLATFORM_FILE_CALLS_H

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

namespace TROV_2_18::system::calls {

int statusOfPath(const char* path, struct stat* status) noexcept;  // follows links
int statusOfDescriptor(int descriptor, struct stat* status) noexcept;
int openForReading(const char* path) noexcept;
ssize_t readSome(int descriptor, char* buffer, std::size_t size) noexcept;
void closeDescriptor(int descriptor) noexcept;

}  // namespace TROV_2_18::system::calls

#endif  // ZARN_PLATFORM_FILE_CALLS_H
