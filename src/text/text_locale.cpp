#include "text/text_locale.h"

#include <locale>

namespace zarn_3_3::internal {

TextLocale globalTextLocale() {
    return std::locale() == std::locale::classic() ? TextLocale::classic : TextLocale::other;
}

}  // namespace zarn_3_3::internal
