// Word-wrapped paragraphs in the style of the library's help, for texts of a tool's own.

#ifndef ZARN_TEXT_LAYOUT_H
#define ZARN_TEXT_LAYOUT_H

#include <cstddef>
#include <string>

#include "zarn/export.h"

namespace zarn_3_3 {

// A head with a description that is wrapped into a column behind it.
//
// One byte is one column. Words are divided at spaces; a line feed in the text breaks the line, and
// several in a row break it once. A word longer than the column is cut. Every line ends with a line
// feed; an empty text gives an empty paragraph, without its head.
//
// A head that leaves no room in its line stands alone on it.
class ZARN_EXPORT WordWrappedText {
public:
    // head       stands at the start of the first line; null reads as the empty text
    // text       the description; null reads as the empty text
    // indent     the column, counted in bytes from 0, in which the description starts
    // lineWidth  one more than the longest line allowed, in bytes: 80 for lines of up to 79. Where
    //            it leaves no column behind the indent (at most indent + 1, or at most 2 with
    //            indent 0), lines break at the line feeds of the text alone.
    //
    // Throws std::bad_alloc when memory runs out, and nothing else.
    WordWrappedText(const char* head, const char* text, std::size_t indent, std::size_t lineWidth);

    WordWrappedText(const WordWrappedText&) = default;
    WordWrappedText(WordWrappedText&&) = default;
    WordWrappedText& operator=(const WordWrappedText&) = default;
    WordWrappedText& operator=(WordWrappedText&&) = default;
    ~WordWrappedText();

    // The paragraph; valid until the object is changed or destroyed.
    const char* getText() const noexcept;

private:
    std::string text;
};

}  // namespace zarn_3_3

#endif  // ZARN_TEXT_LAYOUT_H
