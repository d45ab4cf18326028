#include "text/text_locale.h"

#include <locale>

namespace zarn_3_3::internal {

TextLocale globalTextLocale() {
    // The classic locale with a facet of the client put in has no name, and is another one.
    return std::locale() == std::locale::classic() ? TextLocale::classic : TextLocale::other;
}

}  // namespace zarn_3_3::internal
