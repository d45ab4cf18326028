#include "help/wrapped_text.h"

#include <algorithm>

#include "help/columns.h"

namespace zarn_3_3::internal {

void WrappedText::moveTo(std::size_t column) {
    // A single blank would look like one between words.
    constexpr std::size_t leastGap = 2;
    if (columns_ + leastGap > column) {
        endLine();
    }
    next_ = column;
}

void WrappedText::add(std::string_view text, std::size_t indent) {
    constexpr std::string_view blanks = " \t\n\r";
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(blanks), text.size());
        if (end > 0) {
            addWord(text.substr(0, end), indent);
        }
        // Not by endLine, so that two line feeds leave an empty line.
        if (end < text.size() && text[end] == '\n') {
            breakLine();
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void WrappedText::addWord(std::string_view word, std::size_t indent) {
    const std::size_t columns = columnsOf(word);
    if (!isLineEmpty() && next_ + columns > width_) {
        endLine();
    }
    next_ = next_ == 0 ? indent : next_;
    // Blanks come with the word behind them, so that none ends a line.
    text_.append(next_ - columns_, ' ').append(word);
    columns_ = next_ + columns;
    next_ = columns_ + 1;
}

void WrappedText::endLine() {
    if (!isLineEmpty()) {
        breakLine();
    }
    next_ = 0;
}

void WrappedText::separate() {
    endLine();
    breakLine();
}

void WrappedText::breakLine() {
    text_ += '\n';
    lineBegin_ = text_.size();
    columns_ = next_ = 0;
}

}  // namespace zarn_3_3::internal
