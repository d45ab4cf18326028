// Values and their types in words that are the same in every locale.

#ifndef ZARN_VOCABULARY_VALUE_WORDS_H
#define ZARN_VOCABULARY_VALUE_WORDS_H

#include <string>

#include "plinth2/variant.h"

namespace zarn_3_3::internal {

// As descriptions call it; empty for what cannot be declared.
const char* typeWord(plinth2::das_variant_type_t type);

// As a user types it, whatever the locale: what is typed is what descriptions are compared by.
// Empty for what is no number and no narrow text, and cannot be typed.
std::string typedText(const plinth2::variant_t& value);

}  // namespace zarn_3_3::internal

#endif  // ZARN_VOCABULARY_VALUE_WORDS_H
