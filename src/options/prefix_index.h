// Finds what a beginning can stand for.

#ifndef ZARN_OPTIONS_PREFIX_INDEX_H
#define ZARN_OPTIONS_PREFIX_INDEX_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

#include "options/kept_texts.h"
#include "options/text_table.h"

namespace zarn_3_3::internal {

// A hash table for each length of text that was ever asked for, so that an abbreviation costs about
// as much as a whole name. Nothing is built before the first look-up.
class PrefixIndex {
public:
    struct Found {
        std::uint32_t first = KeptTexts::none;  // of the texts that begin so
        bool isOnly = false;                    // whether no other one does
    };

    // Looks for `beginning` among `texts`, the same ones each time, to which some may have been
    // added. Throws std::bad_alloc.
    Found find(std::string_view beginning, const KeptTexts& texts);

private:
    // The texts by their beginnings of one length.
    struct Length {
        std::size_t taken = 0;       // that many texts are in
        TextTable firsts;            // the first text with each beginning
        std::vector<bool> isShared;  // whether others begin like this first one
    };

    static void catchUp(Length& length, std::size_t size, const KeptTexts& texts);
    static std::uint32_t findFirst(const Length& length,
                                   std::uint32_t hash,
                                   std::string_view beginning,
                                   const KeptTexts& texts);

    std::size_t measured = 0;  // that many texts
    std::size_t longest = 0;   // of them
    std::map<std::size_t, Length> lengths;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_PREFIX_INDEX_H
