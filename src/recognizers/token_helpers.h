// The small cuts: dashes, names and values of an argument, texts at commas.

#ifndef ZARN_RECOGNIZERS_TOKEN_HELPERS_H
#define ZARN_RECOGNIZERS_TOKEN_HELPERS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zarn_3_3 {

// The library's internal status code.
using result_t = std::int32_t;
constexpr result_t resultSuccess = 0;
constexpr result_t resultFailure = 1;

namespace internal {

// White space of the classic locale, whatever locale is set.
constexpr bool isClassicSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// The global locale decides what is white space and how numbers are written. In the classic one,
// which most processes never leave, texts are read without facets and streams.
//
// Asking costs as much as reading a short number, so whoever reads many texts, and knows that no
// client code runs meanwhile, asks once and passes the answer on.
enum class TextLocale { classic, other };

TextLocale globalTextLocale();

}  // namespace internal

// The length in bytes of the dash that begins at byte `pos` of `text`: 1, 3, or 0 for no dash.
// Throws std::out_of_range when `pos` lies behind the end.
std::size_t getDashLength(const std::string& text, std::size_t pos);

// Cuts an argument into its name, without leading dashes, and an attached value; both point into
// it. Whether a value is attached; without one `*value` is left as it was.
bool splitOptionValue(const std::string& argument,
                      std::string_view* name,
                      std::string_view* value,
                      internal::TextLocale locale = internal::globalTextLocale());

// Appends the pieces of `text` between commas to `out`, which has an insert at its end. Empty
// pieces count, but for one behind the last comma.
template <typename Container>
result_t split(std::string_view text, Container& out) {
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        out.insert(out.end(), std::string(text.substr(0, comma)));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return resultSuccess;
}

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_TOKEN_HELPERS_H
