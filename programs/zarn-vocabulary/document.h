// What the pages about a tool say, whatever they are written in.

#ifndef ZARN_VOCABULARY_DOCUMENT_H
#define ZARN_VOCABULARY_DOCUMENT_H

#include <string>
#include <vector>

#include "description.h"

namespace vocabulary {

enum class Style {
    plain,
    option,       // as typed, with its dashes
    placeholder,  // what stands for a value
    value,        // as typed
};

// Behind a span that is not plain, a plain one begins with a blank or with punctuation.
struct Span {
    Style style;
    std::string text;
};

using Text = std::vector<Span>;

// A way to call the tool.
struct Usage {
    std::string action;       // with its dashes; empty for a tool without actions
    std::string actionValue;  // empty: the action takes none
    bool hasOptions = false;
    bool hasTerminator = false;
    std::vector<std::string> places;
};

enum class FactKind { values, defaultValue, separator, deprecated, actions, byName };

struct Fact {
    FactKind kind;
    Text text;
};

struct Entry {
    std::vector<std::string> names;  // with dashes, the short ones first; none for a place
    std::string valueName;           // empty: it takes no value
    std::string help;
    std::vector<Fact> facts;  // at most one of a kind, in the order of the kinds
};

struct Chapter {
    std::string title;
    std::vector<Entry> entries;
};

struct Document {
    std::string name;
    std::string version;
    std::string summary;
    std::vector<Usage> usages;
    std::vector<Chapter> chapters;
    std::vector<Text> notes;  // on how a command line of the tool is written, a paragraph each
};

// What is hidden is left out.
Document documentOf(const Description& description);

// The word in front of a fact.
std::string labelOf(FactKind kind);

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_DOCUMENT_H
