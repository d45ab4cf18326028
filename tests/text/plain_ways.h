// Texts taken apart: numbers, cuts and paragraphs, each beside a plain way to do the same.

#ifndef ZARN_TESTS_TEXT_PLAIN_WAYS_H
#define ZARN_TESTS_TEXT_PLAIN_WAYS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace zarn_3_3::testing_support {

// Each throws std::logic_error, which says what does not hold.

// Of every type, in the global locale.
void checkReading(std::string_view text);
template <typename Number>
void checkWriting(Number number);

// Of arguments, lines and lists.
void checkCuts(std::string_view text);

void checkParagraph(std::string_view text,
                    const std::string& head,
                    std::size_t indent,
                    std::size_t width);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_TEXT_PLAIN_WAYS_H
