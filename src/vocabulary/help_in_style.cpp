#include "vocabulary/help_in_style.h"

#include <algorithm>
#include <cstddef>

#include "help/formatted_help.h"
#include "parser/ask_parser.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

constexpr std::uint32_t leastWidth = 20;

// `end`: behind the field, which a pointer to a member does not tell.
template <typename Field>
void take(Field HelpStyle::*field, std::size_t end, const HelpStyle& given, HelpStyle& style) {
    if (given.size >= end) {
        style.*field = given.*field;
    }
}

// What a caller of another version has of it; the rest is as in a style that says nothing.
HelpStyle known(const HelpStyle& given) {
    constexpr std::size_t number = sizeof(std::uint32_t);
    constexpr std::size_t pointer = sizeof(const void*);
    HelpStyle style;
    take(&HelpStyle::width, offsetof(HelpStyle, width) + number, given, style);
    take(&HelpStyle::flags, offsetof(HelpStyle, flags) + number, given, style);
    take(&HelpStyle::topic, offsetof(HelpStyle, topic) + pointer, given, style);
    take(&HelpStyle::tool, offsetof(HelpStyle, tool) + pointer, given, style);
    return style;
}

}  // namespace

std::optional<std::string> internal::helpInStyle(const HelpStyle& given,
                                                 const BasicParser& parser,
                                                 const ToolTexts& tool) {
    const HelpStyle style = known(given);
    const HelpLook look{std::max(style.width, leastWidth),
                        (style.flags & helpEmphasized) != 0,
                        (style.flags & helpWithHidden) != 0,
                        tool.name,
                        tool.summary,
                        (parser.creationFlags() & flagPositionalBehindTerminator) != 0};
    const RegisteredOptionStorage& registry = parser.vocabulary();
    if (style.topic == nullptr) {
        return formattedHelp(registry, look);
    }
    std::size_t item = 0;
    if (findOption(style.topic, item, registry) != resultSuccess) {
        return std::nullopt;
    }
    return formattedHelpOf(registry, look, item);
}

int formatHelp(IParser* parser, const HelpStyle* style, const char** text) {
    // Refused as a null parser is.
    if (style == nullptr) {
        parser = nullptr;
    }
    return askParser(parser, text, [&](BasicParser& asked) -> int {
        const ToolInfo* const tool = known(*style).tool;
        const ToolInfo nobody{sizeof nobody, nullptr, nullptr, nullptr};
        const auto help = helpInStyle(*style, asked, ToolTexts(tool != nullptr ? *tool : nobody));
        if (!help) {
            return toolingFailed;
        }
        *text = asked.keep(*help);
        return toolingDone;
    });
}

}  // namespace zarn_3_3
