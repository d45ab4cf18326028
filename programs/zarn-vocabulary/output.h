// Where the program puts what it says.

#ifndef ZARN_VOCABULARY_OUTPUT_H
#define ZARN_VOCABULARY_OUTPUT_H

#include <string>

namespace vocabulary {

// Each throws std::runtime_error, which says what could not be written, and why.

void writeToStandardOutput(const std::string& text);

// The file then holds the text, or what it held before; nobody ever sees a part of it. It is made
// anew, with the mode of a new file, in the place of the old one; a link to it stays. A device or a
// pipe is written to as it is.
void writeToFile(const std::string& path, const std::string& text);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_OUTPUT_H
