#include "help/help_renderer.h"

#include <algorithm>
#include <cstddef>

#include "help/messages.h"
#include "options/option_description.h"
#include "options/registered_option_storage.h"
#include "text/garbage.h"
#include "text/paragraph.h"

namespace zarn_3_3::internal {
namespace {

constexpr std::size_t columnWidth = 30;
constexpr std::size_t descriptionWidth = 50;
constexpr std::size_t titleIndent = 1;
constexpr std::size_t titleWidth = 80;

// The names with the last synonym first, behind single dashes.
void appendNames(std::string& column, const OptionDescription& item) {
    for (std::size_t i = item.names.size(); i > 1; --i) {
        column.append("-").append(item.names[i - 1]).append(", ");
    }
    column.append("-").append(item.primaryName());
}

void appendBoolean(std::string& column, const OptionDescription& item) {
    const char* const mark = " (default)";
    const bool isOn = item.hasDefault && item.defaultVal.get<bool>();
    if (isOn) {
        column.append(mark);
    }
    column.append(" | -no-").append(item.primaryName());
    if (item.hasDefault && !isOn) {
        column.append(mark);
    }
}

void appendValueForm(std::string& column, const OptionDescription& item) {
    if (item.allowedValues.empty()) {
        column.append("=<").append(item.getTypeName()).append(">");
    }
    const char* separator = "=";
    for (const variant_t& allowed : item.allowedValues) {
        column.append(separator).append(item.toString(allowed));
        separator = " | ";
    }
    if (item.hasDefault) {
        const std::string defaultText = item.getDefaultValueAsText();
        if (!defaultText.empty()) {
            column.append(" (").append(defaultText).append(")");
        }
    }
}

void appendEntry(std::string& text, std::string& column, const OptionDescription& item) {
    column.clear();
    appendNames(column, item);
    if (item.type == vtBool) {
        appendBoolean(column, item);
    } else if (item.type != vtNull) {
        appendValueForm(column, item);
    }
    if (column.size() >= columnWidth) {
        text.append(column).append("\n");
        column.clear();
    }
    appendParagraph(text, item.description, column, columnWidth, descriptionWidth);
}

void appendSectionHead(std::string& text, const std::string& key, const std::string& title) {
    if (!key.empty()) {
        text.append(key).append("\n");
    }
    if (!title.empty()) {
        appendParagraph(text, title, "", titleIndent, titleWidth);
        text.append("\n");
    }
}

}  // namespace

bool HelpRenderer::isVisible(const std::string& sectionKey, bool hidden) {
    return (sectionKey == "zarn_hidden") == hidden;
}

const char* HelpRenderer::render(const std::vector<const OptionDescription*>& items,
                                 bool hidden) const {
    try {
        return garbage.keep(textFor(items, hidden));
    } catch (...) {
        lastError = messages::unknownError;
        return garbage.keep(lastError);
    }
}

std::string HelpRenderer::textFor(std::vector<const OptionDescription*> items, bool hidden) const {
    std::stable_sort(
        items.begin(), items.end(), [](const OptionDescription* a, const OptionDescription* b) {
            return a->section != b->section ? a->section < b->section : *a < *b;
        });
    std::string text;
    std::string column;
    auto item = items.begin();
    const auto& sections = registry.sectionPairs();
    for (std::size_t section = 0; section < sections.size(); ++section) {
        const auto& [key, title] = sections[section];
        const bool isShown = isVisible(key, hidden);
        if (isShown) {
            appendSectionHead(text, key, title);
        }
        for (; item != items.end() && (*item)->section == section; ++item) {
            if (isShown && !(*item)->isPositional) {
                appendEntry(text, column, **item);
            }
        }
        if (isShown) {
            text.append("\n");
        }
    }
    return text;
}

}  // namespace zarn_3_3::internal
