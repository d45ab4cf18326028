#include "help/help_renderer.h"

#include <algorithm>
#include <cstddef>

#include "help/messages.h"
#include "options/option_description.h"
#include "options/section_list.h"
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

void appendSectionHead(std::string& text, const Section& section) {
    if (!section.key.empty()) {
        text.append(section.key).append("\n");
    }
    if (!section.title.empty()) {
        appendParagraph(text, section.title, "", titleIndent, titleWidth);
        text.append("\n");
    }
}

std::string textFor(const SectionList& sections,
                    std::vector<const OptionDescription*> items,
                    bool hidden) {
    std::stable_sort(
        items.begin(), items.end(), [](const OptionDescription* a, const OptionDescription* b) {
            return a->section != b->section ? a->section < b->section : *a < *b;
        });
    std::string text;
    std::string column;
    auto item = items.begin();
    for (std::size_t section = 0; section < sections.size(); ++section) {
        const bool isShown = isSectionVisible(sections[section].key, hidden);
        if (isShown) {
            appendSectionHead(text, sections[section]);
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

}  // namespace

bool isSectionVisible(const std::string& key, bool hidden) {
    return (key == "zarn_hidden") == hidden;
}

HelpText renderOptions(const SectionList& sections,
                       const std::vector<const OptionDescription*>& items,
                       bool hidden) {
    try {
        return {textFor(sections, items, hidden)};
    } catch (...) {
        return {messages::unknownError, true};
    }
}

}  // namespace zarn_3_3::internal
