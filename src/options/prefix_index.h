// Finds what a beginning can stand for.

#ifndef ZARN_OPTIONS_PREFIX_INDEX_H
#define ZARN_OPTIONS_PREFIX_INDEX_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

#include "text/kept_texts.h"
#include "text/text_table.h"

namespace zarn_3_3::internal {

// A hash table for each length of text that was ever asked for, so that an abbreviation costs about
// as much as a whole name. Nothing is built before the first look-up, and a table holds the texts
// that are so long and no others: all tables together are no larger than all texts.
class PrefixIndex {
public:
    struct Found {
        std::uint32_t first = KeptTexts::none;  // a text that begins so
        bool isOnly = false;                    // whether no other one does
    };

    // Looks for `beginning` among `texts`, the same ones each time, to which some may have been
    // added. Throws std::bad_alloc.
    Found find(std::string_view beginning, const KeptTexts& texts);

private:
    // The texts by their beginnings of one length.
    struct Length {
        std::size_t taken = 0;  // that many candidates are in, or are shorter
        TextTable table;  // beginning to twice the text that had it first, and one when shared
    };

    // Few names are longer, so a table for those goes through them alone.
    static constexpr std::size_t ordinary = 64;

    static bool isLong(std::size_t size) { return size > ordinary; }

    // The texts that are looked through for one length.
    std::size_t candidates(std::size_t size) const;
    std::uint32_t candidate(std::size_t size, std::size_t at) const;

    void measure(const KeptTexts& texts);
    std::size_t countOf(std::size_t size, const KeptTexts& texts) const;
    void catchUp(Length& length, std::size_t size, const KeptTexts& texts) const;

    std::size_t measured_ = 0;                        // that many texts
    std::array<std::size_t, ordinary + 1> ofSize_{};  // how many there are, the long ones last
    std::vector<std::uint32_t> longOnes_;
    std::size_t longest_ = 0;  // of all texts
    std::map<std::size_t, Length> lengths_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_PREFIX_INDEX_H
