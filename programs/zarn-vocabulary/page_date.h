// The dates of pages, in UTC, so that they are the same everywhere.

#ifndef ZARN_VOCABULARY_PAGE_DATE_H
#define ZARN_VOCABULARY_PAGE_DATE_H

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace vocabulary {

// "2026-01-31", a day of the years 1 to 9999; nothing for another text.
std::optional<std::time_t> readDate(std::string_view text);

// Seconds since 1970, as SOURCE_DATE_EPOCH has them; nothing for what is no whole number.
std::optional<std::time_t> readSeconds(std::string_view text);

// "January 31, 2026", as manual pages have it. Throws std::runtime_error for a time outside the
// years 1 to 9999.
std::string writtenDate(std::time_t time);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_PAGE_DATE_H
