// What a tool declares, and the option files of its user, as the bytes of an input describe them.

#ifndef ZARN_FUZZ_TOOL_H
#define ZARN_FUZZ_TOOL_H

#include <string>
#include <vector>

#include "bytes.h"
#include "zarn/parser.h"

namespace fuzzing {

// Declares items, perhaps the option that names files, and actions that go together. Returns the
// names, as declareVocabulary does.
std::vector<std::string> declareTool(Bytes& bytes, zarn_3_3::IParser& parser);

// What stands in the files that arguments can name.
std::vector<std::string> filesFrom(Bytes& bytes);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_TOOL_H
