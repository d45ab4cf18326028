// Paragraphs of whatever text and measures: every line fits and no word is lost.

#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

#include "bytes.h"
#include "check.h"
#include "help/paragraph.h"
#include "zarn/text_layout.h"

namespace fuzzing {
namespace {

struct Layout {
    std::string text;
    std::string head;
    std::size_t indent;
    std::size_t width;

    bool isInContract() const { return width != 1 && (indent > 0 || width > 2); }

    // Of a line without its line feed; without limit when the width is 0.
    std::size_t longestLine() const {
        return width == 0 ? std::numeric_limits<std::size_t>::max() : indent + width - 1;
    }
};

bool isSeparator(char c) { return c == ' ' || c == '\n'; }

void skipSeparators(std::string_view& text) {
    while (!text.empty() && isSeparator(text.front())) {
        text.remove_prefix(1);
    }
}

void take(std::string_view& from, std::string_view expected, const char* what) {
    require(from.substr(0, expected.size()) == expected, what);
    from.remove_prefix(expected.size());
}

std::size_t startOfNextWord(std::string_view rest) {
    return std::min(rest.size(), rest.find_first_not_of(' '));
}

std::size_t endOfNextWord(std::string_view rest) {
    return std::min(rest.size(), rest.find_first_of(" \n", startOfNextWord(rest)));
}

// Behind a line of `length` bytes that holds `chunk`, `rest` goes on: it had to break there.
void checkBreak(std::string_view chunk,
                std::size_t length,
                std::string_view rest,
                std::size_t longest) {
    if (rest.empty() || rest.front() == '\n') {
        return;
    }
    require(length + endOfNextWord(rest) > longest, "a line is filled");
    require(length == longest || length + startOfNextWord(rest) != longest,
            "a line that is full with its blanks keeps them");
    if (!isSeparator(rest.front()) && !(chunk.empty() || chunk.back() == ' ')) {
        require(chunk.find(' ') == std::string_view::npos, "only a word alone in its line is cut");
        require(length == longest, "a word is cut at the end of the line");
    }
}

void checkParagraph(const Layout& layout, std::string_view paragraph) {
    std::string_view rest = layout.text;
    take(paragraph, layout.head, "the head comes first");
    std::size_t column = layout.head.size();
    const bool standsAlone = column >= layout.indent && column >= layout.indent + layout.width - 2;
    if (standsAlone) {
        take(paragraph, "\n", "a head that leaves no room stands alone");
        column = 0;
    }
    while (!rest.empty()) {
        skipSeparators(rest);
        const std::string padding(column < layout.indent ? layout.indent - column : 1, ' ');
        take(paragraph, padding, "the column begins at its indent");
        const std::string_view chunk = paragraph.substr(0, paragraph.find('\n'));
        const std::size_t length = column + padding.size() + chunk.size();
        require(length <= layout.longestLine(), "a line fits");
        take(rest, chunk, "nothing is lost or made up");
        checkBreak(chunk, length, rest, layout.longestLine());
        paragraph.remove_prefix(chunk.size());
        take(paragraph, "\n", "a line ends in a line feed");
        column = 0;
    }
    require(paragraph.empty(), "nothing follows the text");
}

void checkLayout(const Layout& layout) {
    try {
        const std::string paragraph =
            zarn_3_3::paragraphString(layout.text, layout.head, layout.indent, layout.width);
        if (layout.text.empty()) {
            require(paragraph.empty(), "an empty text gives an empty paragraph");
        } else {
            checkParagraph(layout, paragraph);
        }
    } catch (const std::invalid_argument&) {
        require(layout.indent == 0 && layout.width <= 2, "refused only without a column");
    } catch (const std::out_of_range&) {
        require(layout.width == 1, "out of range only for a width of 1");
    }
}

// The exported class takes the width of the whole line, and any number for it.
void checkWrappedText(const Layout& layout) {
    const std::size_t lineWidth = layout.width;
    const zarn_3_3::WordWrappedText wrapped(
        layout.head.c_str(), layout.text.c_str(), layout.indent, lineWidth);
    Layout inner = layout;
    inner.width = lineWidth > layout.indent ? lineWidth - layout.indent : 0;
    if (inner.width == 0 || !inner.isInContract()) {
        inner.width = std::numeric_limits<std::size_t>::max() - layout.indent;
    }
    requireEqual(wrapped.getText(),
                 zarn_3_3::paragraphString(inner.text, inner.head, inner.indent, inner.width),
                 "the same paragraph by the width of its line");
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    Layout layout;
    layout.indent = bytes.below(48);
    layout.width = bytes.below(96);
    layout.head = bytes.text();
    layout.text = bytes.text();
    checkLayout(layout);
    checkWrappedText(layout);
    return 0;
}
