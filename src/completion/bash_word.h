// A word as bash has it, quotes and all.

#ifndef ZARN_COMPLETION_BASH_WORD_H
#define ZARN_COMPLETION_BASH_WORD_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zarn_3_3::internal {

class BashWord {
public:
    // `breaks`: the characters at which readline begins another word. Nothing is expanded: "$HOME"
    // stays as it is, and nothing can be inserted there.
    BashWord(std::string_view typed, std::string_view breaks);

    // Without its quotes, which need not be closed.
    const std::string& text() const { return text_; }

    // What readline is to put in place of what it takes for the word, so that `word`, which begins
    // with the text, stands there. Nothing when no quoting can say it.
    std::optional<std::string> insertionFor(std::string_view word) const;

private:
    std::size_t takeQuoted(std::string_view typed, std::size_t at);
    std::size_t takePlain(std::string_view typed, std::size_t at, std::string_view breaks);

    std::string text_;
    std::size_t brokenAt_ = 0;    // in the text: behind the last of the breaks
    std::size_t quotedFrom_ = 0;  // in the text: behind the quote that was opened last
    char openQuote_ = '\0';
    bool isExpanded_ = false;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_COMPLETION_BASH_WORD_H
