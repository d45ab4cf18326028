#include "help/paragraph.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "zarn/text_layout.h"

namespace zarn_3_3 {
namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

struct Layout {
    const char* label;
    std::string text;
    std::string head;
    std::size_t indent;
    std::size_t width;
    std::string paragraph;
};

const Layout layouts[] = {
    {"EmptyTextDropsTheHead",            "",              "--opt",   10, 30, ""                      },
    {"SpacesOnly",                       "   ",           "--opt",   10, 30, "--opt     \n"          },
    {"LongWordIsCut",                    "wwwwwwwwww",    "",        2,  5,  "  wwww\n  wwww\n  ww\n"},
    {"LineFeedsBreakOnce",               "a\n\n \nb",     "",        1,  9,  " a\n b\n"              },
    {"BreaksBeforeTheCutWord",           "one two three", "",        2,  10, "  one two\n  three\n"  },
    {"SpaceInTheLastColumnStays",        "one two",       "",        1,  5,  " one \n two\n"         },
    {"TrailingLineFeedGivesAPaddedLine", "a\n",           "",        2,  9,  "  a\n  \n"             },
    {"HeadAtTheIndent",                  "abc d",         "head",    4,  6,  "head abc \n    d\n"    },
    {"HeadLeavesOneByte",                "ab",            "123456",  4,  5,  "123456 a\n    b\n"     },
    {"HeadWithoutRoom",                  "ab",            "1234567", 4,  5,  "1234567\n    ab\n"     },
    {"HeadWithoutRoomBeforeSpaces",      " ",             "1234567", 4,  5,  "1234567\n    \n"       },
    {"WidthNoughtDoesNotWrap",           "a long text",   "h",       3,  0,  "h  a long text\n"      },
};

TEST(ParagraphString, WrapsTheTextIntoItsColumn) {
    for (const Layout& c : layouts) {
        SCOPED_TRACE(c.label);
        EXPECT_EQ(paragraphString(c.text, c.head, c.indent, c.width), c.paragraph);
    }
}

TEST(ParagraphString, ThrowsWhereNoLineTakesAByte) {
    for (const std::size_t width : {0u, 1u, 2u}) {
        EXPECT_THROW(paragraphString("a", "", 0, width), std::invalid_argument);
        EXPECT_EQ(paragraphString("", "head", 0, width), "");
    }
    EXPECT_EQ(paragraphString(" ", "head", 3, 1), "head\n   \n");
    EXPECT_THROW(paragraphString("a", "", 3, 1), std::out_of_range);
}

// What a line takes from the front of `text`, rule by rule.
std::string slowChunk(const std::string& text, std::size_t limit) {
    std::string chunk = text.substr(0, text.find('\n')).substr(0, limit);
    if (chunk.size() < text.size()) {
        const char next = text.at(chunk.size());
        if (next != ' ' && next != '\n' && chunk.at(chunk.size() - 1) != ' ') {
            chunk = text.substr(0, text.rfind(' ', chunk.size()));
        }
    }
    return chunk.substr(0, limit);
}

std::string slowParagraph(std::string text,
                          std::string line,
                          std::size_t indent,
                          std::size_t width) {
    std::string out;
    while (!text.empty()) {
        text.erase(0, std::min(text.find_first_not_of(" \n"), text.size()));
        while (line.size() >= indent && line.size() >= indent + width - 2) {
            out += line + '\n';
            line.clear();
        }
        const bool isFull = line.size() >= indent;
        const std::size_t limit = isFull ? indent + width - 2 - line.size() : width - 1;
        line.resize(isFull ? line.size() + 1 : indent, ' ');
        const std::string chunk = slowChunk(text, limit);
        out += line + chunk + '\n';
        line.clear();
        text.erase(0, chunk.size());
    }
    return out;
}

// Calls `visit` with every text over "a", blank and line feed of at most `length` bytes.
template <typename Visit>
void forEveryText(std::size_t length, const std::string& start, Visit visit) {
    visit(start);
    for (std::size_t i = 0; start.size() < length && i < 3; ++i) {
        forEveryText(length, start + "a \n"[i], visit);
    }
}

using Wrap = std::string (*)(std::string, std::string, std::size_t, std::size_t);

std::string outcome(
    Wrap wrap, const std::string& text, const char* head, std::size_t indent, std::size_t width) {
    try {
        return wrap(text, head, indent, width);
    } catch (const std::out_of_range& error) {
        return error.what();
    }
}

TEST(ParagraphString, AgreesWithTheRulesOnEverySmallParagraph) {
    int differences = 0;
    forEveryText(7, "", [&differences](const std::string& text) {
        for (const char* head : {"", "h", "hd", "head", "a head"}) {
            for (std::size_t indent = 0; indent <= 4; ++indent) {
                for (std::size_t width = indent == 0 ? 3 : 0; width <= 6; ++width) {
                    differences += outcome(paragraphString, text, head, indent, width) !=
                                   outcome(slowParagraph, text, head, indent, width);
                }
            }
        }
    });
    EXPECT_EQ(differences, 0);
}

TEST(WordWrappedText, TakesTheWidthOfTheWholeLine) {
    const std::string text = "A description of some words that take more than one line.";
    EXPECT_EQ(WordWrappedText("--opt", text.c_str(), 10, 40).getText(),
              paragraphString(text, "--opt", 10, 30));
}

struct Unusual {
    const char* label;
    const char* head;
    const char* text;
    std::size_t indent;
    std::size_t lineWidth;
    const char* paragraph;
};

const Unusual unusuals[] = {
    {"NullText",                "head",   nullptr,            6, 20,        ""                            },
    {"NullHead",                nullptr,  "text",             2, 20,        "  text\n"                    },
    {"NarrowestColumn",         "h",      "ab",               3, 5,         "h  a\n   b\n"                },
    {"NoColumn",                "h",      "some words\nmore", 3, 4,         "h  some words\n   more\n"    },
    {"LineEndsInsideTheIndent", "a head", "some words\nmore", 3, 1,         "a head some words\n   more\n"},
    {"NoIndentAndNoColumn",     "h",      "some words\nmore", 0, 2,         "h some words\n more\n"       },
    {"EndlessLine",             "h",      "some words",       3, unlimited, "h  some words\n"             },
};

TEST(WordWrappedText, LaysOutWhateverItIsGiven) {
    for (const Unusual& c : unusuals) {
        SCOPED_TRACE(c.label);
        EXPECT_STREQ(WordWrappedText(c.head, c.text, c.indent, c.lineWidth).getText(), c.paragraph);
    }
}

TEST(WordWrappedText, ThrowsBadAllocForAnIndentThatNoMemoryHolds) {
    for (const std::size_t lineWidth : {std::size_t{0}, unlimited - 1, unlimited}) {
        EXPECT_THROW(WordWrappedText("h", "text", unlimited, lineWidth), std::bad_alloc);
        EXPECT_THROW(WordWrappedText("h", "text", unlimited - 1, lineWidth), std::bad_alloc);
    }
}

}  // namespace
}  // namespace zarn_3_3
