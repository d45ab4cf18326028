// The cuts of an argument: dashes, name and attached value.

#ifndef ZARN_TEXT_CUT_ARGUMENT_H
#define ZARN_TEXT_CUT_ARGUMENT_H

#include <cstddef>
#include <string>
#include <string_view>

#include "text/text_locale.h"

namespace zarn_3_3 {

// With which all dashes other than the hyphen begin.
constexpr char longDashLead = '\xE2';

// One byte tells most arguments from dashes.
constexpr bool mayBeDash(char first) { return first == '-' || first == longDashLead; }

// The length in bytes of the dash that begins at byte `pos` of `text`: 1, 3, or 0 for no dash.
// Throws std::out_of_range when `pos` lies behind the end.
std::size_t getDashLength(const std::string& text, std::size_t pos);

// That of the dash in front.
std::size_t leadingDashLength(std::string_view text);

// Cuts an argument into its name, without leading dashes, and an attached value; both point into
// it. Whether a value is attached; without one `*value` is left as it was.
bool splitOptionValue(const std::string& argument,
                      std::string_view* name,
                      std::string_view* value,
                      internal::TextLocale locale);

}  // namespace zarn_3_3

#endif  // ZARN_TEXT_CUT_ARGUMENT_H
