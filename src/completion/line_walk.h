// What the words in front of the one under the cursor tell of it.

#ifndef ZARN_COMPLETION_LINE_WALK_H
#define ZARN_COMPLETION_LINE_WALK_H

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "options/name_index.h"

namespace zarn_3_3 {

class BasicParser;
class OptionDescription;
class RegisteredOptionStorage;

namespace internal {

// Where a word stands on a command line.
struct WordPlace {
    std::size_t waiting = NameIndex::none;  // the item that the word is the value of
    bool isBehindTerminator = false;
    bool isInRest = false;        // behind a plain word that takes the rest with it
    std::size_t plainWords = 0;   // that the positional items have taken
    std::set<std::string> given;  // the primary names of the actions

    bool isBehindOptions() const { return isBehindTerminator || isInRest; }
};

// The item that a name or a beginning of one stands for, or NameIndex::none; `isAmbiguous` when
// several begin so. Throws std::bad_alloc.
struct NamedItem {
    NamedItem(std::string_view name, const RegisteredOptionStorage& registry);

    std::size_t item = NameIndex::none;
    bool isAmbiguous = false;
};

// Whether the value is the next word where none is attached.
bool waitsForValue(const OptionDescription& item);

// The place behind these words, which are read as a parse reads them. Words that it would refuse
// are passed over: their user may come back to them. Throws std::bad_alloc.
WordPlace placeBehind(const std::vector<std::string>& words, const BasicParser& parser);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_COMPLETION_LINE_WALK_H
