// Questions to a tool that calls run.

#ifndef ZARN_MODERN_QUESTION_H
#define ZARN_MODERN_QUESTION_H

#include <optional>
#include <string>

#include "modern/arguments.h"
#include "modern/vocabulary.h"

namespace zarn_3_3::internal {

// The answer when the line is a question (see answerQuestion), and otherwise nothing. The mistakes
// of the tool's author are told here as by a parse: most tools are asked while they are built.
std::optional<Answer> answerToQuestion(Vocabulary& vocabulary,
                                       const std::string& tool,
                                       CommandLine line);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_QUESTION_H
