// Texts in the language of manual pages, mdoc: nothing in them is taken for a macro or an escape,
// and words too long for a line may be broken.

#ifndef ZARN_VOCABULARY_MDOC_TEXT_H
#define ZARN_VOCABULARY_MDOC_TEXT_H

#include <string>
#include <string_view>

namespace vocabulary {

// A word of running text; empty for an empty one.
std::string mdocWord(const std::u32string& word);

// One argument of a macro. Its blanks stay, and no line is broken there.
std::string mdocArgument(std::string_view text);

// Arguments for the rest of a macro's line, a word each.
std::string mdocTitle(std::string_view text);

// The name of the page, where few characters can stand.
std::string mdocPageName(std::string_view text);

// Whether a sentence ends with this word. The next one has to stand in a new line.
bool endsSentence(const std::u32string& word);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_MDOC_TEXT_H
