#include "help/paragraph.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <stdexcept>

#include "zarn/text_layout.h"

namespace zarn_3_3 {
namespace {

struct Layout {
    std::string text;
    std::string head;
    std::size_t indent;
    std::size_t width;
    std::string paragraph;
};

const Layout layouts[] = {
    {"",              "head",    9, 30, ""                      },
    {"wwwwwwwwww",    "",        2, 5,  "  wwww\n  wwww\n  ww\n"},
    {"a\n\n \nb\n",   "",        1, 9,  " a\n b\n \n"           },
    {"one two three", "",        2, 10, "  one two\n  three\n"  },
    {"ab",            "123456",  4, 5,  "123456 a\n    b\n"     },
    {"ab",            "1234567", 4, 5,  "1234567\n    ab\n"     },
    {" ",             "1234567", 4, 1,  "1234567\n    \n"       },
};

TEST(ParagraphString, WrapsTheTextIntoItsColumn) {
    for (const auto& [text, head, indent, width, paragraph] : layouts) {
        EXPECT_EQ(paragraphString(text, head, indent, width), paragraph);
    }
    EXPECT_THROW(paragraphString("a", "", 0, 2), std::invalid_argument);
    EXPECT_THROW(paragraphString("a", "", 3, 1), std::out_of_range);
}

TEST(WordWrappedText, LaysOutWhateverItIsGiven) {
    constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
    EXPECT_STREQ(WordWrappedText("head", nullptr, 6, 20).getText(), "");
    EXPECT_STREQ(WordWrappedText(nullptr, "text", 2, 20).getText(), "  text\n");
    EXPECT_STREQ(WordWrappedText("h", "a b\nc", 0, 2).getText(), "h a b\n c\n");
    EXPECT_STREQ(WordWrappedText("h", "a b", 3, unlimited).getText(), "h  a b\n");
    EXPECT_THROW(WordWrappedText("h", "text", unlimited, unlimited), std::bad_alloc);
    EXPECT_THROW(WordWrappedText("h", "text", unlimited - 1, 0), std::bad_alloc);
}

}  // namespace
}  // namespace zarn_3_3
