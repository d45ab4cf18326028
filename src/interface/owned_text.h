// Values of texts that have no terminator.

#ifndef ZARN_INTERFACE_OWNED_TEXT_H
#define ZARN_INTERFACE_OWNED_TEXT_H

#include <string_view>

#include "plinth2/variant.h"

namespace plinth2 {

// A copy of `text` up to its first NUL, vtString. Throws std::bad_alloc.
variant_t ownedText(std::string_view text);

}  // namespace plinth2

#endif  // ZARN_INTERFACE_OWNED_TEXT_H
