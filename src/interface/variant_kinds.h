// What the type codes of a variant_t say of its payload, and reading that.

#ifndef ZARN_INTERFACE_VARIANT_KINDS_H
#define ZARN_INTERFACE_VARIANT_KINDS_H

#include <cstring>

#include "plinth2/variant.h"

namespace plinth2 {

inline bool isNumber(das_variant_type_t type) noexcept { return type <= vtDouble; }
inline bool isFloating(das_variant_type_t type) noexcept { return type == 10 || type == vtDouble; }
inline bool isUnsigned(das_variant_type_t integer) noexcept { return integer % 2 != 0; }
inline bool isNarrowText(das_variant_type_t type) noexcept {
    return type == vtString || type == vtStringRef;
}
inline bool isWideText(das_variant_type_t type) noexcept {
    return type == vtWString || type == vtWStringRef;
}

// A null text reads as the empty one.
inline const char* narrowText(const void* data) noexcept {
    return data != nullptr ? static_cast<const char*>(data) : "";
}

inline const wchar_t* wideText(const void* data) noexcept {
    return data != nullptr ? static_cast<const wchar_t*>(data) : L"";
}

template <typename Number, typename Payload>
Number bitsAs(const Payload& payload) noexcept {
    static_assert(sizeof(Number) == sizeof(Payload));
    Number number;
    std::memcpy(&number, &payload, sizeof number);
    return number;
}

}  // namespace plinth2

#endif  // ZARN_INTERFACE_VARIANT_KINDS_H
