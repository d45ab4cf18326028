// What one occurrence of an option brought.

#ifndef ZARN_RESULT_OPTION_DATA_H
#define ZARN_RESULT_OPTION_DATA_H

#include <string_view>
#include <vector>

#include "zarn/value.h"

namespace zarn_3_3 {

// The text belongs to the argument, or to `value`: it is valid during the occurrence. A narrow text
// in `value` equals it. Positions are numbers of the running sequence, here and below.
struct OptionValue {
    [[no_unique_address]] variant_t value;
    int position = 0;  // in the bytes that a variant_t leaves free at its end
    std::string_view text;
};

struct OptionData {
    int position = 0;  // of the occurrence; a switch has only this
    std::vector<OptionValue> values;
};

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_OPTION_DATA_H
