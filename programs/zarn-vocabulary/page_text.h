// Texts of others on pages: characters, and what stands for those that cannot be seen.

#ifndef ZARN_VOCABULARY_PAGE_TEXT_H
#define ZARN_VOCABULARY_PAGE_TEXT_H

#include <string>
#include <string_view>
#include <vector>

namespace vocabulary {

// The characters of a text in UTF-8. A byte that is part of none is U+FFFD.
std::u32string decoded(std::string_view text);

inline bool isOneOf(char32_t character, std::u32string_view set) {
    return set.find(character) != std::u32string_view::npos;
}

void appendEncoded(std::string& text, char32_t character);

// The characters, with control characters written as "\x1b".
std::u32string visible(std::string_view text);

// The same, cut at blanks, tabs and the ends of lines.
std::vector<std::u32string> wordsOf(std::string_view text);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_PAGE_TEXT_H
