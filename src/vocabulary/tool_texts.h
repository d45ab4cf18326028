// What is known of a tool.

#ifndef ZARN_VOCABULARY_TOOL_TEXTS_H
#define ZARN_VOCABULARY_TOOL_TEXTS_H

#include <cstddef>
#include <string_view>

#include "zarn/tooling.h"

namespace zarn_3_3::internal {

// Read once: a field that the caller's ToolInfo has not, or that is null, is empty.
struct ToolTexts {
    explicit ToolTexts(const ToolInfo& tool)
        : name(text(tool, offsetof(ToolInfo, name), &ToolInfo::name)),
          version(text(tool, offsetof(ToolInfo, version), &ToolInfo::version)),
          summary(text(tool, offsetof(ToolInfo, summary), &ToolInfo::summary)) {}

    std::string_view name;
    std::string_view version;
    std::string_view summary;

private:
    static std::string_view text(const ToolInfo& tool,
                                 std::size_t offset,
                                 const char* ToolInfo::*field) {
        const bool isThere = tool.size >= offset + sizeof(const char*);
        return isThere && tool.*field != nullptr ? tool.*field : "";
    }
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_VOCABULARY_TOOL_TEXTS_H
