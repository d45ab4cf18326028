#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>

#include "text/paragraph.h"
#include "zarn/text_layout.h"

namespace zarn_3_3 {
namespace {

std::string_view textOrEmpty(const char* text) {
    return text != nullptr ? std::string_view(text) : std::string_view();
}

// Where no column is left, lines break at the line feeds of the text alone.
std::size_t columnWidth(std::size_t indent, std::size_t lineWidth) {
    // Without an indent a space stands in front of the column all the same, and takes one more.
    const std::size_t narrowest = indent == 0 ? 3 : 2;
    const std::size_t unlimited = std::numeric_limits<std::size_t>::max() - indent;
    const bool hasColumn = lineWidth > indent && lineWidth - indent >= narrowest;
    return hasColumn ? lineWidth - indent : unlimited;
}

}  // namespace

WordWrappedText::WordWrappedText(const char* head,
                                 const char* description,
                                 std::size_t indent,
                                 std::size_t lineWidth) try {
    internal::appendParagraph(
        text, textOrEmpty(description), textOrEmpty(head), indent, columnWidth(indent, lineWidth));
} catch (const std::length_error&) {
    // An indent that no text can hold.
    throw std::bad_alloc();
}

WordWrappedText::~WordWrappedText() = default;

const char* WordWrappedText::getText() const noexcept { return text.c_str(); }

}  // namespace zarn_3_3
