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

#include "support/failing_new.h"

namespace zarn_3_3::testing_support {

struct MemoryFile {
    std::string kind;  // file, pipe, growing, directory, device or unreadable
    std::string content;
};

// Nothing of this takes memory while files are read.
struct FileCalls : Countdown {
    using Files = std::map<std::string, std::shared_ptr<const MemoryFile>, std::less<>>;

    Files files;  // by each of their names and spellings

    int error = 0;  // of the call that fails; EINTR comes from those that a signal can interrupt
    std::size_t longestRead = std::numeric_limits<std::size_t>::max();
    int openFiles = 0;  // far below 0 when one was closed that was not open
};

extern thread_local FileCalls fileCalls;

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_FILE_CALLS_DOUBLE_H
