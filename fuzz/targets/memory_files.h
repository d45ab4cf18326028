// Option files that exist only while an input is acted out.

#ifndef ZARN_FUZZ_MEMORY_FILES_H
#define ZARN_FUZZ_MEMORY_FILES_H

#include <string>
#include <vector>

namespace fuzzing {

// The files "f0", "f1" and so on, which "./f0" and so on name as well; "dir" is a directory, and
// nothing else exists. Linking this takes the place of the calls of the operating system: no input
// reaches a real file, or waits for a pipe.
void setFiles(std::vector<std::string> contents);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_MEMORY_FILES_H
