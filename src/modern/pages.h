// What a tool prints about itself.

#ifndef ZARN_MODERN_PAGES_H
#define ZARN_MODERN_PAGES_H

#include <optional>
#include <string>

#include "modern/arguments.h"
#include "modern/vocabulary.h"

namespace zarn_3_3::internal {

// Declares the options that are answered without the tool, where it has none of these names: help,
// and the version.
void declareAnswers(Vocabulary& vocabulary);

// The answer to the first of them, wherever it stands among the options.
std::optional<Answer> findAnswer(Vocabulary& vocabulary, const std::string& tool, CommandLine line);

// The same for an abbreviation, which the parse has understood.
std::optional<Answer> findAnswer(Vocabulary& vocabulary,
                                 const std::string& tool,
                                 const ParseResult& result);

// The name under which the tool is known, or is called.
std::string nameOfTool(const Vocabulary& vocabulary, CommandLine line);

std::string pageOf(Vocabulary& vocabulary, const std::string& tool, Page page, const char* topic);

// The text with its control characters written as "\x1b".
std::string visible(const std::string& text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_PAGES_H
