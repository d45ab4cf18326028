// What the modern face adds to the note of a failure, and to its text.

#ifndef ZARN_MODERN_FAILURES_H
#define ZARN_MODERN_FAILURES_H

#include <string>
#include <vector>

#include "modern/habits.h"
#include "modern/vocabulary.h"
#include "recognizers/failure.h"

namespace zarn_3_3::internal {

// The failure is about an argument that was typed so, and parsed as another.
void retype(Failure& failure, const std::string& typed);

// The same for a failure of one of these words, in the habits of the vocabulary.
void retype(Vocabulary& vocabulary, const std::vector<Word>& words);

// The plain parser knows that a value was refused; `told`, which may be null, why.
void refine(FailureNote& note, const Failure* told);

// The text as `run` prints it: with the place in an option file, and what was probably meant.
std::string toldInFull(Vocabulary& vocabulary, const std::string& text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_FAILURES_H
