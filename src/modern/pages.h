// What a tool prints about itself.

#ifndef ZARN_MODERN_PAGES_H
#define ZARN_MODERN_PAGES_H

#include <optional>
#include <string>

#include "modern/arguments.h"
#include "modern/vocabulary.h"

namespace zarn_3_3::internal {

// Who answers.
struct Teller {
    const std::string& tool;
    void (*fit)(HelpStyle&);  // to the terminal
};

// Declares the options that are answered without the tool, where it has none of these names: help,
// and the version.
void declareAnswers(Vocabulary& vocabulary);

// The answer to the first of them, wherever it stands among the options.
std::optional<Answer> findAnswer(Vocabulary& vocabulary, const Teller& teller, CommandLine line);

// The same for an abbreviation, which the parse has understood.
std::optional<Answer> findAnswer(Vocabulary& vocabulary,
                                 const Teller& teller,
                                 const ParseResult& result);

// The name under which the tool is known, or is called.
std::string nameOfTool(const Vocabulary& vocabulary, CommandLine line);

// The help that the style asks for; for a topic that is unknown a text that says so.
std::string pageOf(Vocabulary& vocabulary, const std::string& tool, HelpStyle style);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_PAGES_H
