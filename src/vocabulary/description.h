// What a tool takes, for machines.

#ifndef ZARN_VOCABULARY_DESCRIPTION_H
#define ZARN_VOCABULARY_DESCRIPTION_H

#include <string>

#include "vocabulary/tool_texts.h"

namespace zarn_3_3 {

class BasicParser;

namespace internal {

// See describeVocabulary.
std::string descriptionOf(const BasicParser& parser, const ToolTexts& tool);

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_VOCABULARY_DESCRIPTION_H
