// What one occurrence of an option brought.

#ifndef ZARN_RESULT_OPTION_DATA_H
#define ZARN_RESULT_OPTION_DATA_H

#include <string>
#include <vector>

#include "zarn/value.h"

namespace zarn_3_3 {

// A narrow text in `value` equals `text`. Positions are numbers of the running sequence, here and
// below.
struct OptionValue {
    std::string text;
    variant_t value;
    int position = 0;
};

struct OptionData {
    std::vector<int> positions;  // of occurrences; a switch has only these
    std::vector<OptionValue> values;
};

}  // namespace zarn_3_3

#endif  // ZARN_RESULT_OPTION_DATA_H
