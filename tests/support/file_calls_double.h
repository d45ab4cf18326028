// Takes the place of the calls of the operating system with which files are read: files stand in
// memory, and calls fail on command. Each thread has its own files.

#ifndef ZARN_TESTS_SUPPORT_FILE_CALLS_DOUBLE_H
#define ZARN_TESTS_SUPPORT_FILE_CALLS_DOUBLE_H

#include <cstddef>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>

namespace zarn_3_3::testing_support {

enum class FileKind { regular, pipe, growing, directory, device, unreadable };

struct MemoryFile {
    FileKind kind;
    std::string content;
};

// Nothing of this takes memory while files are read.
struct FileCalls {
    using Files = std::map<std::string, std::shared_ptr<const MemoryFile>, std::less<>>;

    Files files;  // by each of their names and spellings

    long left = 0;           // calls up to the one that fails, 1 for the next; 0: none will
    bool isLasting = false;  // whether all that follow fail as well
    int error = 0;           // its errno; EINTR interrupts the calls that a signal can interrupt
    bool hasStruck = false;
    std::size_t longestRead = std::numeric_limits<std::size_t>::max();
    int openFiles = 0;  // far below 0 when one was closed that was not open
};

extern thread_local FileCalls fileCalls;

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_FILE_CALLS_DOUBLE_H
