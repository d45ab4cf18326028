// Command lines as they are handed to a parser.

#ifndef ZARN_FUZZ_ARGUMENTS_H
#define ZARN_FUZZ_ARGUMENTS_H

#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace fuzzing {

// Parses a command line whose arguments have no byte to spare behind them.
int parseArguments(zarn_3_3::IParser& parser,
                   const std::vector<std::string>& arguments,
                   zarn_3_3::IParseResult* result);

// Whether the lines of a text say the same as these arguments.
bool canBeLines(const std::vector<std::string>& arguments);
std::string linesOf(const std::vector<std::string>& arguments);

}  // namespace fuzzing

#endif  // ZARN_FUZZ_ARGUMENTS_H
