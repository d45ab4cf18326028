// Numbers from texts and back by a stream of the global locale: what the readers and writers by
// hand must agree with, and what they call where that locale is not the classic one.

#ifndef ZARN_TEXT_NUMBER_STREAM_H
#define ZARN_TEXT_NUMBER_STREAM_H

#include <optional>
#include <string>
#include <string_view>

#include "text/number_text.h"

namespace zarn_3_3::internal {

// The same types as numberFromText and textFromNumber. Throw std::bad_alloc.
template <typename T>
[[gnu::cold]] std::optional<T> numberFromStream(std::string_view text,
                                                Trailing trailing,
                                                bool hexadecimal);
template <typename T>
[[gnu::cold]] std::string textFromStream(T number);

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_NUMBER_STREAM_H
