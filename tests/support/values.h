// Values of all kinds, as texts of scenarios and back.

#ifndef ZARN_TESTS_SUPPORT_VALUES_H
#define ZARN_TESTS_SUPPORT_VALUES_H

#include <deque>
#include <stdexcept>
#include <string>

#include "zarn/zarn.h"

namespace zarn_3_3::testing_support {

// A step that says nothing that could be done.
class BadStep final : public std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

long numberOf(const std::string& word);

// The word "null" is the null pointer.
const char* pointerTo(const std::string& word);

das_variant_type_t kindNamed(const std::string& word);

// What can be read of a value: nothing of wide texts and blocks.
std::string contentOf(const variant_t& value);
std::string kindOf(const variant_t& value);

// Makes values, and lends them their texts.
class ValueMaker {
public:
    // KIND:TEXT, or a text of the kind `usual`.
    variant_t make(const std::string& word, das_variant_type_t usual);

private:
    variant_t makeOf(das_variant_type_t kind, const std::string& text);

    std::deque<std::string> narrowTexts;
    std::deque<std::wstring> wideTexts;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_VALUES_H
