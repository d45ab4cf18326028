// Texts with gaps.

#ifndef ZARN_TEXT_FILLED_H
#define ZARN_TEXT_FILLED_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace zarn_3_3::internal {

// `pattern` with the pieces in the places of its "{}", of which it has as many. What a piece says
// is not looked at.
//
// One call however many there are: messages are built seldom, and the code that builds them shall
// not crowd the code that needs none.
std::string filled(const char* pattern, std::initializer_list<std::string_view> pieces);

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_FILLED_H
