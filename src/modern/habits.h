// The habits of Unix, taken out of the arguments in front of a parse.

#ifndef ZARN_MODERN_HABITS_H
#define ZARN_MODERN_HABITS_H

#include <string>
#include <vector>

#include "modern/arguments.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {

// An argument as it is parsed, and, where that differs, as it was typed.
struct Word {
    std::string text;
    std::string typed;
    int index = 0;  // in argv; of several arguments the first
};

// Whether what stands behind a letter is its value, whatever it begins with.
constexpr bool areLettersGlued(unsigned habits) {
    return (habits & gluedValues) != 0 && (habits & shortNames) != 0;
}

// The arguments behind the first, taken apart by the habits that the vocabulary accepts.
std::vector<Word> adaptArguments(const Vocabulary& vocabulary, CommandLine line);

// Has the message quote what was typed.
void quoteTyped(std::string& message, const std::vector<Word>& words);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_HABITS_H
