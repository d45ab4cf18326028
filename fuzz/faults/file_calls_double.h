// Takes the place of the calls of the operating system with which files are read, and plays faults.

#ifndef ZARN_FAULTS_FILE_CALLS_DOUBLE_H
#define ZARN_FAULTS_FILE_CALLS_DOUBLE_H

#include <cstddef>
#include <functional>
#include <limits>

namespace zarn_3_3::faults {

struct FileCalls {
    long left = 0;  // calls up to the one that fails, 1 for the next; 0: none will
    bool isLasting = false;
    int error = 0;  // its errno
    bool hasStruck = false;
    bool isInterruptible = false;  // whether it struck a call that a signal interrupts
    std::size_t longestRead = std::numeric_limits<std::size_t>::max();
    std::function<void()> beforeReading;  // when an open file has been looked at
    int openFiles = 0;
};

extern FileCalls fileCalls;

}  // namespace zarn_3_3::faults

#endif  // ZARN_FAULTS_FILE_CALLS_DOUBLE_H
