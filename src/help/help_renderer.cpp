#include "help/help_renderer.h"

#include <cstddef>

#include "help/messages.h"
#include "options/option_description.h"
#include "options/section_list.h"
#include "text/merge_sort.h"
#include "text/paragraph.h"

namespace zarn_3_3::internal {
namespace {

// Names and values on the left, descriptions on the right: lines of at most 79 bytes. Titles may be
// one byte longer.
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

// Both forms that a user may type; the mark stands behind the one that holds when neither is given.
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

// The allowed values say more than the name of their type. A default with an empty text is none, in
// a result too.
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

// A column that is too wide stands on a line of its own, and the description starts below it.
//
// Kept: an item without a description is shown only if its column is that wide.
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

// The section of items that were declared without one has neither key nor title, and no head.
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
    // By section first: one pass over the items then serves all sections. Items with one name
    // stay in the order of their declaration.
    mergeSort(items, [](const OptionDescription* a, const OptionDescription* b) {
        return a->section != b->section ? a->section < b->section : *a < *b;
    });
    std::string text;
    // One for all entries, so that it keeps its room.
    std::string column;
    auto item = items.begin();
    for (std::size_t section = 0; section < sections.size(); ++section) {
        const bool isShown = isSectionVisible(sections[section].key, hidden);
        if (isShown) {
            appendSectionHead(text, sections[section]);
        }
        // The items of a section that is not shown are passed over here, too.
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

// Help with hidden items shows those alone.
bool isSectionVisible(const std::string& key, bool hidden) {
    return (key == "zarn_hidden") == hidden;
}

HelpText renderOptions(const SectionList& sections,
                       const std::vector<const OptionDescription*>& items,
                       bool hidden) {
    try {
        return {textFor(sections, items, hidden)};
    } catch (...) {
        // Whatever it was: who asks for help shall get an answer, and no other failure.
        return {messages::unknownError, true};
    }
}

}  // namespace zarn_3_3::internal
