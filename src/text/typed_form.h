// Names as users type them.

#ifndef ZARN_TEXT_TYPED_FORM_H
#define ZARN_TEXT_TYPED_FORM_H

#include <string>
#include <string_view>

namespace zarn_3_3::internal {

// "-j", "--jobs"
inline std::string typedForm(std::string_view name) {
    return std::string(name.size() == 1 ? "-" : "--").append(name);
}

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_TYPED_FORM_H
