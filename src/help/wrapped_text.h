// Text in lines of a given width.

#ifndef ZARN_HELP_WRAPPED_TEXT_H
#define ZARN_HELP_WRAPPED_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace zarn_3_3::internal {

// Words, set one behind the other with a blank between them. No line is wider than the width but
// one that holds a single word, and none ends with a blank.
class WrappedText {
public:
    explicit WrappedText(std::size_t width) : width_(width) {}

    // The next word begins in this column: of this line when two blanks go in front of it, else of
    // the next.
    void moveTo(std::size_t column);

    // Adds the words of the text. Lines begin at `indent`; a line feed begins one.
    void add(std::string_view text, std::size_t indent);

    // Ends the line, if there is anything in it.
    void endLine();

    // Ends the line, and adds an empty one.
    void separate();

    std::string take() { return std::move(text_); }

private:
    bool isLineEmpty() const { return text_.size() == lineBegin_; }
    void breakLine();
    void addWord(std::string_view word, std::size_t indent);

    std::size_t width_;
    std::string text_;
    std::size_t lineBegin_ = 0;
    std::size_t columns_ = 0;  // of the line
    std::size_t next_ = 0;     // where the next word begins; 0: at the indent
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_WRAPPED_TEXT_H
