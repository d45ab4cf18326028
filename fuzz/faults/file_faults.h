// Reads option files while the operating system fails, and files of every kind.

#ifndef ZARN_FAULTS_FILE_FAULTS_H
#define ZARN_FAULTS_FILE_FAULTS_H

#include <string>

namespace zarn_3_3::faults {

// Lets every call of the operating system fail, once and lasting. Returns how many failed.
long disturbFileCalls(const std::string& folder);

// Returns how many kinds of files were loaded or refused.
long loadEveryKind(const std::string& folder);

}  // namespace zarn_3_3::faults

#endif  // ZARN_FAULTS_FILE_FAULTS_H
