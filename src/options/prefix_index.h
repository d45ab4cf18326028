// Finds the names, and "no-" forms of booleans, that begin with a text.

#ifndef ZARN_OPTIONS_PREFIX_INDEX_H
#define ZARN_OPTIONS_PREFIX_INDEX_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "options/name_walk.h"
#include "options/text_table.h"

namespace zarn_3_3::internal {

// A hash table for each length of text that was ever asked for, so that an abbreviation costs about
// as much as a whole name. Nothing is built before the first look-up.
class PrefixIndex {
public:
    // Appends every candidate that begins with `text`, in the order of the items and of their
    // names, each name before its "no-" form. Equal candidates may stand there more than once.
    // Throws std::bad_alloc.
    void appendBeginningWith(std::string_view text,
                             const OptionList& options,
                             std::vector<std::string>& names);

private:
    // A name or its "no-" form.
    struct Candidate {
        NamePlace place;
        bool isNoForm;

        std::string text() const;
        std::size_t size() const;
        bool beginsWith(std::string_view beginning) const;
        bool equals(std::string_view other) const {
            return size() == other.size() && beginsWith(other);
        }
    };

    // The candidates by their beginnings of one length: the first that begins so, and whether
    // another one does.
    struct Entry {
        std::uint32_t candidate;
        bool isShared;
    };
    struct Length {
        std::size_t taken = 0;  // that many candidates are in
        std::vector<Entry> entries;
        TextTable table;
    };

    void catchUp(const OptionList& options);
    void catchUp(Length& length, std::size_t size) const;
    void add(Length& length,
             std::uint32_t candidate,
             std::string_view text,
             std::size_t size) const;
    const Entry* find(const Length& length, std::uint32_t hash, std::string_view beginning) const;

    NameWalk walk;
    std::vector<Candidate> candidates;  // in the order of declaration
    std::size_t longest = 0;            // of the candidates
    std::map<std::size_t, Length> lengths;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_PREFIX_INDEX_H
