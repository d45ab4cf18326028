// Goes through the names of a growing vocabulary, each once.

#ifndef ZARN_OPTIONS_NAME_WALK_H
#define ZARN_OPTIONS_NAME_WALK_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "options/option_description.h"

namespace zarn_3_3::internal {

// Where a name stands. The name itself may still move while its item is the last one.
struct NamePlace {
    const OptionDescription* item;
    std::uint32_t itemIndex;
    std::uint32_t nameIndex;

    const std::string& text() const { return item->names[nameIndex]; }
};

// What an index has taken in so far. Items are only ever added, and of those there only the last
// can get further names, so catching up costs no more than the names that are new.
class NameWalk {
public:
    bool isUpToDate(const OptionList& options) const {
        return itemsTaken == options.size() &&
               (options.empty() || namesTaken == options.back().names.size());
    }

    // Calls take(place) for every name that was declared since, in the order of the items and of
    // their names. A name whose take throws is taken again the next time.
    template <typename Take>
    void catchUp(const OptionList& options, Take take) {
        for (;;) {
            if (itemsTaken > 0) {
                const OptionDescription& last = options[itemsTaken - 1];
                for (; namesTaken < last.names.size(); ++namesTaken) {
                    take(NamePlace{&last,
                                   static_cast<std::uint32_t>(itemsTaken - 1),
                                   static_cast<std::uint32_t>(namesTaken)});
                }
            }
            if (itemsTaken == options.size()) {
                return;
            }
            ++itemsTaken;
            namesTaken = 0;
        }
    }

private:
    std::size_t itemsTaken = 0;  // the last of them perhaps with further names to come
    std::size_t namesTaken = 0;  // of that last item
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_NAME_WALK_H
