// Which locale texts are read in.

#ifndef ZARN_TEXT_TEXT_LOCALE_H
#define ZARN_TEXT_TEXT_LOCALE_H

namespace zarn_3_3::internal {

// White space of the classic locale, whatever locale is set. One comparison tells letters from it.
constexpr bool isClassicSpace(char c) { return c <= ' ' && (c == ' ' || (c >= '\t' && c <= '\r')); }

// The global locale decides what is white space and how numbers are written. In the classic one,
// which most processes never leave, texts are read without facets and streams.
//
// Asking costs as much as reading a short number, so whoever reads many texts, and knows that no
// client code runs meanwhile, asks once and passes the answer on.
enum class TextLocale { classic, other };

TextLocale globalTextLocale();

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_TEXT_LOCALE_H
