// Finds the files that are named on the command line, directly or by their folder.

#ifndef ZARN_CHECKSUMS_FILE_LIST_H
#define ZARN_CHECKSUMS_FILE_LIST_H

#include <string>
#include <vector>

namespace checksums {

struct FileList {
    std::vector<std::string> files;     // sorted, each once
    std::vector<std::string> problems;  // what could not be looked into, and why
};

// Folders are searched to the bottom; links to folders inside them are not followed. Of what lies
// in folders only regular files count. `excluded` is left out: it is the file to be written.
FileList findFiles(const std::vector<std::string>& names, const std::string& excluded);

}  // namespace checksums

#endif  // ZARN_CHECKSUMS_FILE_LIST_H
