#include "text/paragraph.h"

#include <algorithm>
#include <stdexcept>

namespace zarn_3_3 {
namespace internal {
namespace {

std::string_view withoutLeadingSeparators(std::string_view text) {
    const auto isSeparator = [](char c) { return c == ' ' || c == '\n'; };
    std::size_t start = 0;
    while (start < text.size() && isSeparator(text[start])) {
        ++start;
    }
    text.remove_prefix(start);
    return text;
}

// How much of `text`, which begins with no separator, goes into a line that takes `limit` bytes.
std::size_t chunkLength(std::string_view text, std::size_t limit) {
    const std::string_view line = text.substr(0, limit);
    const std::size_t lineFeed = line.find('\n');
    if (lineFeed != std::string_view::npos) {
        return lineFeed;
    }
    if (line.size() == text.size()) {
        return line.size();
    }
    if (limit == 0) {
        // Width 1 alone comes to this: neither the help nor WordWrappedText asks for it.
        throw std::out_of_range(
            "basic_string::at: __n (which is 18446744073709551615) >= this->size() (which is 0)");
    }
    // The line is full: it may end here if a word does, and otherwise behind the word before. A
    // word that is longer than the line is cut.
    const char next = text[line.size()];
    if (next == ' ' || next == '\n' || line.back() == ' ') {
        return line.size();
    }
    const std::size_t lastSpace = line.rfind(' ');
    return lastSpace == std::string_view::npos ? line.size() : lastSpace;
}

// Moves from the end of a line of `length` bytes to the description column. Returns how many bytes
// the line still takes.
std::size_t enterColumn(std::string& out,
                        std::size_t length,
                        std::size_t indent,
                        std::size_t width) {
    // With the blank that goes in front, a line behind a head is as long as the others.
    const std::size_t longest = indent + width - 2;
    // A head that fills its line stands alone. One that only reaches into the column leaves it what
    // is left.
    if (length >= indent && length >= longest) {
        out += '\n';
        length = 0;
    }
    if (length >= indent) {
        out += ' ';
        return longest - length;
    }
    out.append(indent - length, ' ');
    return width - 1;
}

}  // namespace

void appendParagraph(std::string& out,
                     std::string_view text,
                     std::string_view head,
                     std::size_t indent,
                     std::size_t width) {
    if (text.empty()) {
        return;
    }
    if (indent == 0 && width <= 2) {
        throw std::invalid_argument("paragraph without a column");
    }
    out += head;
    std::size_t length = head.size();
    while (!text.empty()) {
        text = withoutLeadingSeparators(text);
        // Kept: also where nothing but separators was left, which makes a line of blanks.
        const std::size_t limit = enterColumn(out, length, indent, width);
        const std::size_t chunk = chunkLength(text, limit);
        out += text.substr(0, chunk);
        out += '\n';
        text.remove_prefix(chunk);
        length = 0;
    }
}

}  // namespace internal

std::string paragraphString(std::string text,
                            std::string head,
                            std::size_t indent,
                            std::size_t width) {
    std::string paragraph;
    internal::appendParagraph(paragraph, text, head, indent, width);
    return paragraph;
}

}  // namespace zarn_3_3
