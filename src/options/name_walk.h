// Goes through the names of a growing vocabulary, each once.

#ifndef ZARN_OPTIONS_NAME_WALK_H
#define ZARN_OPTIONS_NAME_WALK_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "options/option_description.h"

namespace zarn_3_3::internal {

// Where a name stands. Numbers, not pointers, since items move.
struct NamePlace {
    std::uint32_t item;
    std::uint32_t name;

    const std::string& in(const std::vector<OptionDescription>& options) const {
        return options[item].names[name];
    }
};

// What an index has taken in so far. Items are only ever added, and of those there only the last
// can get further names, so catching up costs no more than the names that are new.
class NameWalk {
public:
    // Calls take(place) for every name that was declared since, in the order of the items and of
    // their names. A name whose take throws is taken again the next time.
    template <typename Take>
    void catchUp(const std::vector<OptionDescription>& options, Take take) {
        for (;;) {
            if (itemsTaken > 0) {
                const std::size_t last = itemsTaken - 1;
                for (; namesTaken < options[last].names.size(); ++namesTaken) {
                    take(NamePlace{static_cast<std::uint32_t>(last),
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
