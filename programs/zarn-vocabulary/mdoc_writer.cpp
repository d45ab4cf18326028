#include "mdoc_writer.h"

#include <cstddef>
#include <string_view>

#include "mdoc_text.h"
#include "page_text.h"

namespace vocabulary {
namespace {

// Of a line of text, as it is typed. mandoc asks for less than 80 bytes.
constexpr std::size_t longestLine = 78;

// Of a name of a tool, in bytes, behind which its arguments are shown.
constexpr std::size_t longestIndent = 24;

const char* macroOf(Style style) {
    switch (style) {
        case Style::option:
            return ".Fl";
        case Style::placeholder:
            return ".Ar";
        default:
            return ".Ql";
    }
}

// The macro writes the first dash.
std::string argumentOf(const Span& span) {
    return mdocArgument(std::string_view(span.text).substr(span.style == Style::option ? 1 : 0));
}

class MdocWriter {
public:
    std::string page(const Document& document, const std::string& date) {
        addFront(document, date);
        addSynopsis(document);
        line(".Sh DESCRIPTION");
        for (const Chapter& chapter : document.chapters) {
            addChapter(chapter);
        }
        addNotes(document.notes);
        return page_ + "\n";
    }

private:
    // Begins a line, of a macro perhaps, whose arguments are then appended.
    void line(const std::string& text) {
        page_.append(page_.empty() ? "" : "\n").append(text);
        column_ = 0;
        isMacro_ = text.front() == '.';
    }

    void word(const std::u32string& text) {
        const std::string typed = mdocWord(text);
        if (column_ == 0 || column_ + 1 + typed.size() > longestLine) {
            line(typed);
        } else {
            page_.append(" ").append(typed);
            ++column_;
        }
        column_ = endsSentence(text) ? 0 : column_ + typed.size();
    }

    // True when what comes next stands without a blank behind a macro's arguments.
    bool touches(std::string_view next) const {
        return isMacro_ && !next.empty() && next.front() != ' ';
    }

    void prose(std::string_view text) {
        bool isPunctuation = touches(text);
        for (const std::u32string& each : wordsOf(text)) {
            if (isPunctuation) {
                for (const char32_t mark : each) {
                    page_.append(" ") += static_cast<char>(mark);
                }
            } else {
                word(each);
            }
            isPunctuation = false;
        }
    }

    void rich(const Text& text) {
        for (const Span& span : text) {
            if (span.style == Style::plain) {
                prose(span.text);
            } else {
                line(macroOf(span.style) + (" " + argumentOf(span)));
            }
        }
    }

    // Running text, not what belongs to the line before.
    void paragraph(std::string_view text) {
        isMacro_ = false;
        prose(text);
    }

    void addFront(const Document& document, const std::string& date) {
        const std::string version = document.version.empty() ? "" : " " + document.version;
        line(".Dd " + date);
        line(".Dt " + mdocPageName(document.name) + " 1");
        line(".Os " + mdocTitle(document.name + version));
        line(".Sh NAME");
        line(".Nm " + mdocArgument(document.name));
        line(".Nd " + mdocTitle(summaryOf(document)));
    }

    // The macro wants one, without a full stop.
    static std::string_view summaryOf(const Document& document) {
        std::string_view summary = document.summary;
        summary = summary.substr(0, summary.find_last_not_of(" \t\n\v\f\r") + 1);
        if (!summary.empty() && summary.back() == '.') {
            summary.remove_suffix(1);
        }
        return summary.empty() ? "a tool for the command line" : summary;
    }

    // What follows .Nm is indented by the length of the name, and has to find room there.
    void addCall(const Document& document, bool isFirst) {
        if (document.name.size() <= longestIndent) {
            line(".Nm");
            return;
        }
        if (!isFirst) {
            line(".Pp");
        }
        line(".Ic " + mdocArgument(document.name));
    }

    void addSynopsis(const Document& document) {
        line(".Sh SYNOPSIS");
        for (const Usage& usage : document.usages) {
            addCall(document, &usage == &document.usages.front());
            if (!usage.action.empty()) {
                line(".Fl " + argumentOf({Style::option, usage.action}) +
                     valueArgument(usage.actionValue));
            }
            if (usage.hasOptions) {
                line(".Op Ar options");
            }
            if (usage.hasTerminator) {
                line(".Op Fl \\-");
            }
            for (const std::string& place : usage.places) {
                line(".Op" + valueArgument(place));
                page_.append(&place == &usage.places.back() ? " ..." : "");
            }
        }
    }

    static std::string valueArgument(const std::string& name) {
        return name.empty() ? "" : " Ar " + mdocArgument(name);
    }

    void addChapter(const Chapter& chapter) {
        line(".Ss " + mdocTitle(chapter.title));
        line(".Bl -tag -width Ds");
        for (const Entry& entry : chapter.entries) {
            addEntry(entry);
        }
        line(".El");
    }

    void addEntry(const Entry& entry) {
        line(".It");
        for (const std::string& name : entry.names) {
            page_.append(&name == &entry.names.front() ? "" : " ,");
            page_.append(" Fl ").append(argumentOf({Style::option, name}));
        }
        page_.append(valueArgument(entry.valueName));
        paragraph(entry.help);
        if (!entry.facts.empty() && column_ != 0) {
            page_.append(".");
            column_ = 0;
        }
        for (const Fact& fact : entry.facts) {
            paragraph(labelOf(fact.kind) + ":");
            rich(fact.text);
            prose(".");
        }
    }

    void addNotes(const std::vector<Text>& notes) {
        line(".Ss The command line");
        for (const Text& note : notes) {
            if (&note != &notes.front()) {
                line(".Pp");
            }
            isMacro_ = false;
            rich(note);
        }
    }

    std::string page_;
    std::size_t column_ = 0;  // in a line of text; 0 where a line has to begin
    bool isMacro_ = false;
};

}  // namespace

std::string asManualPage(const Document& document, const std::string& date) {
    return MdocWriter().page(document, date);
}

}  // namespace vocabulary
