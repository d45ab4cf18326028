#include "text/joined.h"

namespace zarn_3_3::internal {

std::string joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) {
        text.append(piece);
    }
    return text;
}

}  // namespace zarn_3_3::internal
