// What became of the beginnings for which a name or a value used to be enough.

#ifndef ZARN_VOCABULARY_BEGINNINGS_H
#define ZARN_VOCABULARY_BEGINNINGS_H

#include <cstddef>
#include <string>
#include <vector>

#include "comparison.h"

namespace vocabulary {

// What a text that meant a name or value means now.
struct Fate {
    enum Kind { kept, lost, redirected };

    Kind kind = kept;
    std::string to;  // what it means now; of a lost one what else it begins, empty for nothing
};

// How names, or the values of one item, are looked up, before and now.
class Lookup {
public:
    virtual ~Lookup() = default;

    // Whether the beginning was enough for the candidate. Then each longer one was, too.
    virtual bool wasMeant(const std::string& text) = 0;
    virtual Fate fate(const std::string& text) = 0;

    // Whether the text is a whole name, or value, of the new item.
    virtual bool isWhole(const std::string& text) const = 0;

    // The text as it stands on a command line.
    virtual std::string typed(const std::string& text) const = 0;
};

// Tells the beginnings of `candidate`, of at most so many bytes, that are lost or redirected, once
// for each range. Lost ones are left out when the candidate is known to be gone.
void compareBeginnings(const std::string& candidate,
                       std::size_t longest,
                       Lookup& lookup,
                       bool isGone,
                       const std::string& item,
                       Changes& changes);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_BEGINNINGS_H
