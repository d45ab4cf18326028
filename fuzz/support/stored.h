// What a result holds, as texts that show whether one result is the beginning of another.

#ifndef ZARN_FUZZ_SUPPORT_STORED_H
#define ZARN_FUZZ_SUPPORT_STORED_H

#include <map>
#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace zarn_3_3::checking {

struct Stored {
    // By name, "(1 a@2 b@3)(4)": each occurrence with its number and its values with theirs.
    std::map<std::string, std::string> given;
    std::map<std::string, std::string> defaults;  // of what was not given
    std::string plain;                            // "a|b|"
};

// Reads what stands under the names. Numbers count from `base`.
Stored readStored(IParseResult& result, const std::vector<std::string>& names, int base);

std::string describe(const Stored& stored);

// Whether `part` can be left of `whole` when a parse breaks off: of every name the first
// occurrences, each as a whole, and no default but those in `defaults`.
bool isBeginning(const Stored& part, const Stored& whole, const Stored& defaults);

}  // namespace zarn_3_3::checking

#endif  // ZARN_FUZZ_SUPPORT_STORED_H
