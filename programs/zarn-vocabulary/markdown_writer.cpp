#include "markdown_writer.h"

#include <algorithm>
#include <string_view>

#include "page_text.h"

namespace vocabulary {
namespace {

constexpr std::u32string_view marks = U"\\`*_[]<>&|~$#";

// Running text, with blanks and line ends collapsed.
std::string prose(std::string_view text) {
    std::string written;
    for (const std::u32string& word : wordsOf(text)) {
        written.append(written.empty() ? "" : " ");
        for (const char32_t character : word) {
            written.append(isOneOf(character, marks) ? "\\" : "");
            appendEncoded(written, character);
        }
    }
    return written;
}

// What stands between spans keeps the blanks at its ends.
std::string between(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    const std::string_view front = text.substr(0, first);
    const std::string_view back = text.substr(text.find_last_not_of(' ') + 1);
    return std::string(front) + prose(text) + std::string(back);
}

// Where a line begins, some marks and a number would begin a list, or underline what is above.
std::string proseInFront(std::string_view text) {
    std::string written = prose(text);
    const std::size_t mark = written.find_first_not_of("0123456789");
    if (mark != std::string::npos &&
        std::string_view(mark == 0 ? "+-=:" : ".)").find(written[mark]) != std::string_view::npos) {
        written.insert(mark, "\\");
    }
    return written;
}

// In HTML, where no mark of Markdown is left that could mean something.
std::string codeElement(const std::u32string& text) {
    std::string code = "<code>";
    for (const char32_t character : text) {
        if (isOneOf(character, marks) || character == U' ') {
            code.append("&#").append(std::to_string(static_cast<unsigned>(character))).append(";");
        } else {
            appendEncoded(code, character);
        }
    }
    return code.append("</code>");
}

std::string code(std::string_view text) {
    const std::u32string shown = visible(text);
    const bool isPlain = !shown.empty() && shown.find_first_of(U"`|\\") == std::u32string::npos &&
                         shown.find(U"  ") == std::u32string::npos && shown.front() != U' ' &&
                         shown.back() != U' ';
    if (!isPlain) {
        return codeElement(shown);
    }
    std::string span = "`";
    for (const char32_t character : shown) {
        appendEncoded(span, character);
    }
    return span + "`";
}

std::string placeholder(std::string_view name) {
    const std::string written = prose(name);
    return written.empty() ? code(name) : "*" + written + "*";
}

std::string rich(const Text& text) {
    std::string written;
    for (const Span& span : text) {
        written.append(span.style == Style::plain         ? between(span.text)
                       : span.style == Style::placeholder ? placeholder(span.text)
                                                          : code(span.text));
    }
    return written;
}

class MarkdownWriter {
public:
    std::string page(const Document& document) {
        paragraph("# " + prose(document.name + " " + document.version));
        paragraph(proseInFront(document.summary));
        paragraph("## Synopsis");
        for (const Usage& usage : document.usages) {
            addUsage(document.name, usage);
        }
        paragraph("## Description");
        for (const Chapter& chapter : document.chapters) {
            addChapter(chapter);
        }
        paragraph("### The command line");
        for (const Text& note : document.notes) {
            paragraph(rich(note));
        }
        return page_;
    }

private:
    void line(const std::string& text) { page_.append(text).append("\n"); }

    void paragraph(const std::string& text) {
        if (!text.empty()) {
            page_.append(page_.empty() ? "" : "\n");
            line(text);
        }
    }

    void addUsage(const std::string& tool, const Usage& usage) {
        std::string written = code(tool);
        if (!usage.action.empty()) {
            written.append(" ").append(code(usage.action)).append(valueOf(usage.actionValue));
        }
        written.append(usage.hasOptions ? " \\[*options*\\]" : "");
        written.append(usage.hasTerminator ? " \\[`--`\\]" : "");
        for (const std::string& place : usage.places) {
            const bool isLast = &place == &usage.places.back();
            written.append(" \\[").append(placeholder(place)).append(isLast ? " ...\\]" : "\\]");
        }
        paragraph(written);
    }

    static std::string valueOf(const std::string& name) {
        return name.empty() ? "" : " " + placeholder(name);
    }

    void addChapter(const Chapter& chapter) {
        std::vector<FactKind> columns;
        for (const Entry& entry : chapter.entries) {
            for (const Fact& fact : entry.facts) {
                columns.push_back(fact.kind);
            }
        }
        std::sort(columns.begin(), columns.end());
        columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
        paragraph("### " + prose(chapter.title));
        addHead(chapter, columns);
        for (const Entry& entry : chapter.entries) {
            addRow(entry, columns);
        }
    }

    void addHead(const Chapter& chapter, const std::vector<FactKind>& columns) {
        const bool hasNames = !chapter.entries.front().names.empty();
        std::string head = hasNames ? "| Option | Meaning |" : "| Argument | Meaning |";
        std::string rule = "|---|---|";
        for (const FactKind kind : columns) {
            head.append(" ").append(labelOf(kind)).append(" |");
            rule.append("---|");
        }
        paragraph(head);
        line(rule);
    }

    void addRow(const Entry& entry, const std::vector<FactKind>& columns) {
        std::string row = "| " + headOf(entry) + " | " + prose(entry.help) + " |";
        for (const FactKind kind : columns) {
            const auto fact = std::find_if(entry.facts.begin(),
                                           entry.facts.end(),
                                           [kind](const Fact& each) { return each.kind == kind; });
            row.append(" ").append(fact != entry.facts.end() ? rich(fact->text) : "").append(" |");
        }
        line(row);
    }

    static std::string headOf(const Entry& entry) {
        if (entry.names.empty()) {
            return placeholder(entry.valueName);
        }
        std::string head;
        for (const std::string& name : entry.names) {
            head.append(head.empty() ? "" : ", ").append(code(name));
        }
        return head + valueOf(entry.valueName);
    }

    std::string page_;
};

}  // namespace

std::string asMarkdown(const Document& document) { return MarkdownWriter().page(document); }

}  // namespace vocabulary
