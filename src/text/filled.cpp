#include "text/filled.h"

#include <cstddef>

namespace zarn_3_3::internal {

std::string filled(std::string_view pattern, std::initializer_list<std::string_view> pieces) {
    constexpr std::string_view gap = "{}";
    std::string text;
    for (const std::string_view piece : pieces) {
        const std::size_t before = pattern.find(gap);
        // From gap to gap: what a piece brings is behind the place where the next gap is looked
        // for.
        text.append(pattern.substr(0, before)).append(piece);
        pattern.remove_prefix(before + gap.size());
    }
    return text.append(pattern);
}

}  // namespace zarn_3_3::internal
