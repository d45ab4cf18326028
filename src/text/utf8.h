// Characters in UTF-8.

#ifndef ZARN_TEXT_UTF8_H
#define ZARN_TEXT_UTF8_H

#include <cstddef>
#include <string_view>

namespace zarn_3_3::internal {

// The bytes of the character in front of `text`; 0 when the first byte begins none, as in an
// overlong form, a surrogate, or a character that is cut off.
std::size_t characterLength(std::string_view text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_UTF8_H
