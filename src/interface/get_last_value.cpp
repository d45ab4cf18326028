#include "zarn/result.h"

namespace zarn_3_3 {

Value getLastValue(IParseResult* result, const char* name, int from, int to) {
    Value last;
    if (result == nullptr || name == nullptr) {
        return last;
    }
    // Through the interface alone: the result may be of another version of the library, or a
    // client's own.
    for (Value value = result->get(name, from, to); value.status == statusFound;
         value = result->next(name)) {
        last = value;
    }
    return last;
}

}  // namespace zarn_3_3
