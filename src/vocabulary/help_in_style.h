// Help as a HelpStyle asks for it.

#ifndef ZARN_VOCABULARY_HELP_IN_STYLE_H
#define ZARN_VOCABULARY_HELP_IN_STYLE_H

#include <optional>
#include <string>

#include "parser/basic_parser.h"
#include "vocabulary/tool_texts.h"
#include "zarn/tooling.h"

namespace zarn_3_3::internal {

// The help of this tool; nothing when no item has the name that the style asks about.
std::optional<std::string> helpInStyle(const HelpStyle& style,
                                       const BasicParser& parser,
                                       const ToolTexts& tool);

}  // namespace zarn_3_3::internal

#endif  // ZARN_VOCABULARY_HELP_IN_STYLE_H
