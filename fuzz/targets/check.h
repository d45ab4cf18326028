// What must hold for every input.

#ifndef ZARN_FUZZ_CHECK_H
#define ZARN_FUZZ_CHECK_H

#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzzing {

// Ends the program unless `holds`: the fuzzer then keeps the input, and a replay names it.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s\n", what);
        std::abort();
    }
}

inline void requireEqual(const std::string& actual, const std::string& expected, const char* what) {
    if (actual != expected) {
        std::fprintf(stderr,
                     "Differs: %s\n--- expected\n%s\n--- actual\n%s\n",
                     what,
                     expected.c_str(),
                     actual.c_str());
        std::abort();
    }
}

}  // namespace fuzzing

#endif  // ZARN_FUZZ_CHECK_H
