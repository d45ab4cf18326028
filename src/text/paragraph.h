// Word-wrapped paragraphs with a hanging indent, of which all help is made.

#ifndef ZARN_TEXT_PARAGRAPH_H
#define ZARN_TEXT_PARAGRAPH_H

#include <cstddef>
#include <string>
#include <string_view>

namespace zarn_3_3 {

// Lays out `text` behind `head` in a column that starts at `indent`; lines are at most indent +
// width - 1 bytes long. Every line ends with a line feed. An empty text gives the empty text.
//
// Throws std::invalid_argument for an indent of 0 with a width of 2 or less (no line would ever
// take a byte), and std::out_of_range for a width of 1. A width of 0 does not wrap.
std::string paragraphString(std::string text,
                            std::string head,
                            std::size_t indent,
                            std::size_t width);

namespace internal {

// The same, at the end of `out`.
void appendParagraph(std::string& out,
                     std::string_view text,
                     std::string_view head,
                     std::size_t indent,
                     std::size_t width);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_TEXT_PARAGRAPH_H
