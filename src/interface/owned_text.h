// Texts into values, and out of them.

#ifndef ZARN_INTERFACE_OWNED_TEXT_H
#define ZARN_INTERFACE_OWNED_TEXT_H

#include <string_view>

#include "interface/variant_kinds.h"
#include "plinth2/variant.h"

namespace plinth2 {

// A copy of `text` up to its first NUL, vtString. Throws std::bad_alloc.
variant_t ownedText(std::string_view text);

// The narrow text that a value holds, or null. What get_variant_value answers to clients, without
// a call.
inline const char* heldText(const variant_t& value) noexcept {
    return isNarrowText(value.m_type) ? narrowText(value.m_value.pointer) : nullptr;
}

}  // namespace plinth2

#endif  // ZARN_INTERFACE_OWNED_TEXT_H
