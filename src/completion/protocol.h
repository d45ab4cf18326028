// How shells ask for candidates, and how each wants them.

#ifndef ZARN_COMPLETION_PROTOCOL_H
#define ZARN_COMPLETION_PROTOCOL_H

#include <string>
#include <string_view>
#include <vector>

namespace zarn_3_3 {

class BasicParser;

namespace internal {

// The answer to "complete:1:SHELL:INDEX:BREAKS"; empty for another question, another protocol and
// one that makes no sense. `words`: behind the name of the tool, of which the one numbered INDEX
// from 1 on is under the cursor, and ends there. bash sends them as they were typed; BREAKS are
// those characters, of which it begins another word behind an unquoted one, that may stand in one.
//
// The first line is "zarn 1", or "zarn 1 files" when the shell is to offer the names of files; then
// one line for each candidate: for bash what is to be inserted, for the others the word, a tab and
// its help. Throws std::bad_alloc.
std::string answerCompletion(std::string_view question,
                             const std::vector<std::string_view>& words,
                             const BasicParser& parser);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_COMPLETION_PROTOCOL_H
