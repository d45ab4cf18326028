// The calls of the operating system that reading a file takes, as they are: errors come back as -1
// with errno, interruptions too. Tests replace this file at link time to play faults.
//
// A thread that waits in one of them can be cancelled there: this unwinds like an exception, so
// those that wait are not noexcept, and whoever calls them closes what is open.

#ifndef ZARN_PLATFORM_FILE_CALLS_H
#define ZARN_PLATFORM_FILE_CALLS_H

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

namespace TROV_2_18::system::calls {

int statusOfPath(const char* path, struct stat* status) noexcept;  // follows links
int statusOfDescriptor(int descriptor, struct stat* status) noexcept;
int openForReading(const char* path);
ssize_t readSome(int descriptor, char* buffer, std::size_t size);
void closeDescriptor(int descriptor) noexcept;  // is not cancelled

}  // namespace TROV_2_18::system::calls

#endif  // ZARN_PLATFORM_FILE_CALLS_H
