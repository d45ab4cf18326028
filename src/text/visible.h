// Texts of others on a terminal.

#ifndef ZARN_TEXT_VISIBLE_H
#define ZARN_TEXT_VISIBLE_H

#include <string>

namespace zarn_3_3::internal {

// The text with its control characters written as "\x1b".
std::string visible(const std::string& text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_VISIBLE_H
