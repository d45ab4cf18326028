// How wide a terminal shows a text.

#ifndef ZARN_HELP_COLUMNS_H
#define ZARN_HELP_COLUMNS_H

#include <cstddef>
#include <string>
#include <string_view>

namespace zarn_3_3::internal {

// The columns of a text in UTF-8, whatever the locale: two for wide characters, none for those that
// combine with the one before and for what switches emphasis ("\x1b[1m"). A byte that is no UTF-8
// counts as one.
std::size_t columnsOf(std::string_view text);

// The text without what switches emphasis.
std::string withoutEmphasis(std::string_view text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_COLUMNS_H
