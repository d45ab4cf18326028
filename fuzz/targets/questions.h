// What a client asks a parser and a result, answered as texts that can be compared.

#ifndef ZARN_FUZZ_QUESTIONS_H
#define ZARN_FUZZ_QUESTIONS_H

#include <string>
#include <vector>

#include "bytes.h"
#include "zarn/zarn.h"

namespace fuzzing {

// Checks that help is made of whole lines, and kept at one address however often it is asked for.
void checkHelp(zarn_3_3::IParser& parser, const std::vector<std::string>& names);

// Whether the names are declared, and as what.
std::string declarations(zarn_3_3::IParser& parser, const std::vector<std::string>& names);

// The queries that the bytes describe, one after the other. Checks that values are in their range.
std::string queries(Bytes& bytes,
                    zarn_3_3::IParseResult& result,
                    const std::vector<std::string>& names);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_QUESTIONS_H
