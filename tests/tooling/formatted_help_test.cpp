// Help in columns: what it says, and that it keeps to its width.

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "help/columns.h"
#include "support/failing_new.h"
#include "support/tool.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {
namespace {

using testing_support::PlainTool;

constexpr ToolInfo press{sizeof press, "press", "1.0", "Prints books, 本を印刷する."};

// Wide and combining characters, long words, items of every kind. Each description ends in a mark
// of its own.
class FormattedHelp : public testing::Test {
protected:
    FormattedHelp() : tool(flagPositionalBehindTerminator) {
        IParser& p = *tool.parser;
        p.action("print,p", "Print  the book #1.", vtNull, "");
        p.action("bind,b", "Bind it #2.", vtS32, "");
        p.action("pulp", "Take it back #3.", vtNull, "zarn_hidden:For publishers");
        p.modifier("paper", "print", "印刷に使う紙の種類 #4.", vtString, "")
            .allowValue("laid")
            .allowValue("wove")
            .allowValue("")
            .allowDeprecatedValue("rag", "wove")
            .defaultValue("wove");
        p.modifier("glue,g", "print,bind", "Cafe\xcc\x81 glue... #5", vtBool, "")
            .defaultValue(true);
        p.modifier("thread", "bind", "Which one #6", vtDouble, "");
        p.modifier("shredder", "pulp", "How fine #7.", vtS32, "");
        p.modifier("ink,k", "print", "Its colour #8.", vtString, "colour:What it looks like:");
        p.option("名前,n", "The name on the cover,\nin gold #9.", vtString, "colour");
        p.option("a-name-that-leaves-no-room-for-anything,x,no", "#10", vtU64, "Press");
        p.option("q", "", vtNull, "Press").defaultValue(true);
        p.option("seed", "Begins the random numbers #11.", vtU32, "zarn_hidden");
        p.option("book", "averylongwordthatnolineofanordinarywidthhasaplacefor #12.", vtString, "")
            .positional();
        nameValue(&p, "book", "BOOK");
        nameValue(&p, "paper", "KIND");
    }

    std::string help(const HelpStyle& style) {
        const char* text = nullptr;
        EXPECT_EQ(formatHelp(tool.parser, &style, &text), toolingDone);
        return text;
    }

    PlainTool tool;
};

HelpStyle styleOf(std::uint32_t width, std::uint32_t flags = 0, const char* topic = nullptr) {
    HelpStyle style;
    style.width = width;
    style.flags = flags;
    style.topic = topic;
    style.tool = &press;
    return style;
}

constexpr const char* whole = R"(Usage: press --print [options] [--] [BOOK...]
       press --bind INTEGER [options] [--] [BOOK...]

Prints books, 本を印刷する.

Actions:
  -p, --print           Print the book #1.
  -b, --bind INTEGER    Bind it #2.

Arguments:
  BOOK                  averylongwordthatnolineofanordinarywidthhasaplacefor
                        #12.

Options of --print:
      --paper KIND      印刷に使う紙の種類 #4: laid, wove or "" (default wove).

Options of --bind:
      --thread NUMBER   Which one #6

Options:
  -g, --[no-]glue       Café glue... #5 (default on)

What it looks like:
  -k, --ink TEXT        Its colour #8 (with --print).
  -n, --名前 TEXT       The name on the cover,
                        in gold #9.

Press:
  -x, --a-name-that-leaves-no-room-for-anything, --no INTEGER
                        #10
  -q
)";

constexpr const char* narrow = R"(Usage: press --print [options] [--]
           [BOOK...]
       press --bind INTEGER [options]
           [--] [BOOK...]

Prints books, 本を印刷する.

Actions:
  -p, --print
        Print the book #1.
  -b, --bind INTEGER
        Bind it #2.

Arguments:
  BOOK
        averylongwordthatnolineofanordinarywidthhasaplacefor
        #12.

Options of --print:
  --paper KIND
        印刷に使う紙の種類 #4: laid,
        wove or "" (default wove).

Options of --bind:
  --thread NUMBER
        Which one #6

Options:
  -g, --[no-]glue
        Café glue... #5 (default on)

What it looks like:
  -k, --ink TEXT
        Its colour #8 (with --print).
  -n, --名前 TEXT
        The name on the cover,
        in gold #9.

Press:
  -x,
      --a-name-that-leaves-no-room-for-anything,
      --no INTEGER
        #10
  -q

For publishers:
  --pulp
        Take it back #3.
  --shredder INTEGER
        How fine #7.
  --seed INTEGER
        Begins the random numbers #11.
)";

constexpr const char* ofBind = R"(Usage: press --bind INTEGER [options] [--] [BOOK...]

Bind it #2.

Arguments:
  BOOK                  averylongwordthatnolineofanordinarywidthhasaplacefor #12.

Options of --bind:
  -g, --[no-]glue       Café glue... #5 (default on)
      --thread NUMBER   Which one #6

What it looks like:
  -n, --名前 TEXT       The name on the cover,
                        in gold #9.

Press:
  -x, --a-name-that-leaves-no-room-for-anything, --no INTEGER
                        #10
  -q
)";

constexpr const char* ofGlue = R"(  -g, --[no-]glue   Café glue... #5 (default on)
)";

TEST_F(FormattedHelp, ReadsWell) {
    struct Case {
        HelpStyle style;
        const char* text;
    };
    const Case cases[] = {
        {styleOf(80),                                                         whole},
        {           styleOf(40,                                                     helpWithHidden),                                                                  narrow},
        { styleOf(120, 0,                                                                  "b"), ofBind},
        {                                                                   styleOf(80, 0,                                                                  "glue"), ofGlue},
        {                                                                   styleOf(80,                                                helpEmphasized,      "seed"),
         "  \x1b[1m--seed\x1b[0m INTEGER   Begins the random numbers #11.\n"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(help(each.style), each.text);
    }
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> found;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        found.push_back(line);
    }
    return found;
}

TEST_F(FormattedHelp, KeepsToItsWidth) {
    for (std::uint32_t width = 20; width <= 130; ++width) {
        const std::string text = help(styleOf(width, helpWithHidden));
        for (const std::string& line : linesOf(text)) {
            const std::size_t word = line.find_first_not_of(' ');
            const bool isOneWord = line.find(' ', word) == std::string::npos;
            EXPECT_TRUE(internal::columnsOf(line) <= width || isOneWord) << width << ": " << line;
            EXPECT_TRUE(line.empty() || line.back() != ' ') << width << ": " << line;
        }
        std::string words = text + " ";
        for (const char c : std::string("\n.;),:")) {
            std::replace(words.begin(), words.end(), c, ' ');
        }
        for (int item = 1; item <= 12; ++item) {
            const std::string mark = " #" + std::to_string(item) + " ";
            const std::size_t found = words.find(mark);
            EXPECT_NE(found, std::string::npos) << width << mark;
            EXPECT_EQ(words.find(mark, found + 1), std::string::npos) << width << mark;
        }
        // Emphasis moves nothing.
        std::string emphasized = help(styleOf(width, helpWithHidden | helpEmphasized));
        EXPECT_THAT(emphasized, testing::HasSubstr("\x1b[1m-p\x1b[0m, \x1b[1m--print\x1b[0m"));
        for (const std::string code : {"\x1b[0m", "\x1b[1m", "\x1b[4m"}) {
            for (std::size_t at; (at = emphasized.find(code)) != std::string::npos;) {
                emphasized.erase(at, code.size());
            }
        }
        EXPECT_EQ(emphasized, text);
    }
}

TEST(FormattedHelpOf, AToolWithoutTitlesAndActionsNamesItsHiddenOptions) {
    PlainTool plain;
    plain->action("go", "Goes.", vtNull, "");
    plain->modifier("lost", "nowhere", "Of no action.", vtNull, "");
    plain->option("secret", "For us.", vtNull, "zarn_hidden");
    plain->option("wet", "Rains.", vtBool, "").defaultValue(false);
    const HelpStyle style = styleOf(80, helpWithHidden);
    const char* text = nullptr;
    ASSERT_EQ(formatHelp(plain.parser, &style, &text), toolingDone);
    const std::string shown = text;
    EXPECT_NE(shown.find("--lost       Of no action."), std::string::npos) << shown;
    EXPECT_NE(shown.find("--[no-]wet   Rains (default off)."), std::string::npos) << shown;
    EXPECT_NE(shown.find("Hidden options:\n  --secret     For us."), std::string::npos) << shown;
}

TEST_F(FormattedHelp, SharesAUsageLineAmongManyActions) {
    for (const char* const name : {"fold", "cut", "sew", "ship"}) {
        tool->action(name, "", vtNull, "");
    }
    EXPECT_THAT(help({}),
                testing::StartsWith("Usage: ACTION [options] [--] [BOOK...]\n\nActions:"));
}

TEST_F(FormattedHelp, ReadsWhatItsCallerHas) {
    HelpStyle older = styleOf(7, 0, "nowhere");
    older.size = offsetof(HelpStyle, topic);
    HelpStyle least;
    least.width = 20;
    EXPECT_EQ(help(older), help(least));
    older.size = 0;
    EXPECT_EQ(help(older), help({}));
}

TEST_F(FormattedHelp, FailsAlone) {
    const HelpStyle style = styleOf(80, helpEmphasized | helpWithHidden);
    const HelpStyle unknown = styleOf(80, 0, "nowhere");
    const char* text = nullptr;
    EXPECT_EQ(formatHelp(nullptr, &style, &text), toolingFailed);
    EXPECT_EQ(formatHelp(tool.parser, nullptr, &text), toolingFailed);
    EXPECT_EQ(formatHelp(tool.parser, &style, nullptr), toolingFailed);
    EXPECT_EQ(formatHelp(tool.parser, &unknown, &text), toolingFailed);
    EXPECT_STREQ(text, "");
    bool isThrough = false;
    for (long allocation = 1; !isThrough; ++allocation) {
        memory.left = allocation;
        const int code = formatHelp(tool.parser, &style, &text);
        isThrough = !memory.hasStruck;
        static_cast<Countdown&>(memory) = Countdown();
        ASSERT_EQ(code, isThrough ? toolingDone : toolingFailed);
        ASSERT_EQ(*text == '\0', !isThrough);
    }
}

TEST(ColumnsOf, CountsWhatATerminalShows) {
    struct Case {
        std::string text;
        std::size_t columns;
    };
    const Case cases[] = {
        {"",                                 0},
        {"a\xc3\xa9",                        2},
        {"e\xcc\x81\xe2\x80\x8b",            1},
        {"\xe6\x9c\xac\xef\xbc\xa1",         4},
        {"\xf0\x9f\x98\x80\xf0\xa0\x80\x80", 4},
        {"\xef\xbd\xb1\xed\x9e\xa4",         2}, // half-width, and behind the last of the wide
        {"\x1b[1;31mab\x1b[0m",              2},
        {"\x1b[2Ja",                         5}, // no emphasis
        {"\x1b[1",                           3}, // cut short
        {"\xf4\x8f\xbf\xbf",                 1}, // the last character
        {"\xff\xc0\x80",                     3}, // no UTF-8
        {"\xe6\x9c",                         2}, // cut short
        {"\xe6\x9c\xc3\xa9",                 3},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(internal::columnsOf(each.text), each.columns)
            << testing::PrintToString(each.text);
    }
}

}  // namespace
}  // namespace zarn_3_3
