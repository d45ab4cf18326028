// The types in which a C++ tool holds the values of its options.

#ifndef ZARN_PEERS_VALUE_TYPES_H
#define ZARN_PEERS_VALUE_TYPES_H

#include <string>
#include <vector>

#include "workload.h"

namespace zarn_benchmarks {

// Calls `use` with an empty value of the type that holds what `item` takes.
template <typename Use>
void withTypeOf(const DeclaredOption& item, bool multiValued, Use use) {
    if (isSwitch(item.kind)) {
        use(false);
    } else if (item.kind == Kind::real) {
        use(0.0);
    } else if (item.kind == Kind::integer && multiValued) {
        use(std::vector<int>());
    } else if (item.kind == Kind::integer) {
        use(0);
    } else if (multiValued) {
        use(std::vector<std::string>());
    } else {
        use(std::string());
    }
}

}  // namespace zarn_benchmarks

#endif  // ZARN_PEERS_VALUE_TYPES_H
