// What may stand on a command line where the cursor is.

#ifndef ZARN_COMPLETION_CANDIDATES_H
#define ZARN_COMPLETION_CANDIDATES_H

#include <string>
#include <string_view>
#include <vector>

namespace zarn_3_3 {

class BasicParser;

namespace internal {

struct Candidate {
    std::string word;       // in place of the whole word under the cursor, which it begins with
    std::string_view help;  // of the item that it names; empty for values
};

struct Completion {
    bool takesFiles = false;  // the names of files belong there, and there are no candidates
    std::vector<Candidate> candidates;
};

// `before`: the words in front of the one under the cursor, without the name of the tool. `word`:
// that one, up to the cursor. No client code runs. Throws std::bad_alloc.
Completion completionsOf(const std::string& word,
                         const std::vector<std::string>& before,
                         const BasicParser& parser);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_COMPLETION_CANDIDATES_H
