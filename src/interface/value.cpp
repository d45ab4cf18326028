#include "zarn/value.h"

namespace zarn_3_3 {

Value::Value(const char* foundText, const variant_t& foundValue, int foundPosition) noexcept
    : text(foundText), status(statusFound), position(foundPosition), value(foundValue) {}

template <>
const char* Value::as<const char*>() const noexcept {
    return status == statusFound ? text : nullptr;
}

}  // namespace zarn_3_3
