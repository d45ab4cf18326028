// Texts put together.

#ifndef ZARN_TEXT_JOINED_H
#define ZARN_TEXT_JOINED_H

#include <initializer_list>
#include <string>
#include <string_view>

namespace zarn_3_3::internal {

// The pieces one behind the other. One call however many there are: messages are built seldom, and
// the code that builds them shall not crowd the code that needs none.
std::string joined(std::initializer_list<std::string_view> pieces);

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_JOINED_H
