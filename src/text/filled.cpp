#include "text/filled.h"

#include <cstddef>

namespace zarn_3_3::internal {

std::string filled(const char* pattern, std::initializer_list<std::string_view> pieces) {
    constexpr std::string_view gap = "{}";
    std::string_view rest = pattern;
    std::string text;
    for (const std::string_view piece : pieces) {
        const std::size_t before = rest.find(gap);
        // From gap to gap: what a piece brings is behind the place where the next gap is looked
        // for.
        text.append(rest.substr(0, before)).append(piece);
        rest.remove_prefix(before + gap.size());
    }
    return text.append(rest);
}

}  // namespace zarn_3_3::internal
