#include <gtest/gtest.h>

#include <array>

#include "support/counted_calls.h"
#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::PlainTool;
using Words = std::vector<std::string>;

struct Listener final : EventHandler {
} listener;

// The clock tells too little; a step that goes through everything seen before shows in what it
// takes from memory, compares and copies.
struct Effort {
    std::size_t blocks;
    std::size_t bytes;
    std::size_t calls;
};

template <typename Run>
Effort measure(Run run) {
    const Memory before = memory;
    const std::size_t callsBefore = memoryCalls;
    run();
    return {memory.blocks - before.blocks, memory.bytes - before.bytes, memoryCalls - callsBefore};
}

// `taken(n)` tells what n elements take, without what it takes to prepare them.
template <typename Taken>
void expectLinear(Taken taken) {
    constexpr std::size_t n = 2000;
    taken(10);  // whatever is made once
    const Effort small = taken(n);
    const Effort large = taken(2 * n);
    EXPECT_LE(large.blocks * 10, small.blocks * 22 + 100) << small.blocks;
    EXPECT_LE(large.bytes * 10, small.bytes * 22 + 1000) << small.bytes;
    EXPECT_LE(large.calls * 10, small.calls * 22 + 1000) << small.calls;
}

std::string numbered(const std::string& prefix, std::size_t number) {
    return prefix + std::to_string(100000 + number);  // all of one length
}

struct CommandLine {
    int flags;
    bool isPositional;     // an option for positional arguments is declared
    const char* first;     // of the arguments
    const char* argument;  // the others, each with a number behind
};

const CommandLine commandLines[] = {
    {0,                       false, "-x=1", "--x="     },
    {0,                       false, "-x=1", "--no-name"},
    {0,                       false, "-x=1", "-cut"     },
    {0,                       false, "-x=1", "--unknown"},
    {0,                       false, "--",   "plain"    },
    {0,                       true,  "-x=1", "file"     },
    {flagPositionalTakesRest, true,  "file", "--x="     },
};

TEST(Growth, IsLinearInArguments) {
    for (const CommandLine& line : commandLines) {
        SCOPED_TRACE(line.argument);
        expectLinear([&line](std::size_t n) {
            PlainTool tool(line.flags);
            tool->addHandler(&listener);
            tool.option("x");
            if (line.isPositional) {
                tool.option("files").positional();
            }
            std::vector<std::string> texts{line.first};
            for (std::size_t i = 0; i < n; ++i) {
                tool.option(numbered("name", i), vtBool);
                tool.option(numbered("cut", i) + "-here", vtNull);
                texts.push_back(numbered(line.argument, i));
            }
            return measure([&] { ASSERT_EQ(tool.parse(texts), resultOk); });
        });
    }
}

TEST(Growth, IsLinearInATextAndItsPieces) {
    for (const char* piece : {"--x=value\n# comment\n", "--x\nvalue\n", "a-piece,", ","}) {
        SCOPED_TRACE(piece);
        expectLinear([piece](std::size_t n) {
            PlainTool tool;
            tool.option("x");
            std::string text = "--x=a,";
            while (n-- > 0) {
                text += piece;
            }
            return measure(
                [&] { ASSERT_EQ(tool->parseStream(text.c_str(), tool.result), resultOk); });
        });
    }
}

// Each item is declared, found and given a synonym; then defaults, help and queries use them all,
// and they are looked for among the actions, where they are not, and in another section.
TEST(Growth, IsLinearInDeclarations) {
    expectLinear([](std::size_t n) {
        PlainTool tool;
        return measure([&] {
            for (std::size_t i = 0; i < n; ++i) {
                const std::string name = numbered("name", i);  // its end names a section
                IOption& item = tool->option(name.c_str(), "Help", vtS32, name.c_str() + 7);
                item.synonym(numbered("synonym", i).c_str()).defaultValue(1);
                ASSERT_TRUE(tool->isOptionDeclared(name.c_str(), false, nullptr));
            }
            ASSERT_EQ(tool.parse({"--unknown"}), resultOk);
            ASSERT_EQ(tool->getDescription(false), tool->getDescription(false));
            for (std::size_t i = 0; i < n; ++i) {
                ASSERT_TRUE(tool.result->present(numbered("synonym", i).c_str(), 0, INT_MAX));
                const std::string name = numbered("name", i);
                ASSERT_FALSE(tool->isOptionDeclared(name.c_str(), true, nullptr));
                ASSERT_FALSE(tool->isOptionDeclared(name.c_str(), false, "none"));
            }
        });
    });
}

// With a handler each occurrence has a copy of the item declared last, but not of its tags.
TEST(Growth, IsLinearInTagsAndOccurrences) {
    expectLinear([](std::size_t n) {
        PlainTool tool;
        tool->addHandler(&listener);
        IOption& item = tool.option("x", vtNull);
        for (std::size_t i = 0; i < n; ++i) {
            item.tag(numbered("tag", i).c_str());
        }
        const Words line(n, "-x");
        return measure([&] { ASSERT_EQ(tool.parse(line), resultOk); });
    });
}

TEST(Growth, IsLinearInTheLengthOfAnArgument) {
    for (const char* const front : {"--x=", "--", "--dry=", "--level=", "--list=", "-----", ""}) {
        SCOPED_TRACE(front);
        expectLinear([front](std::size_t n) {
            PlainTool tool(flagUnknownIsError | flagPositionalWithoutDash);
            tool.option("x").tokenize(0);
            tool.option("dry", vtNull);
            tool.option("level", vtS32);
            tool.option("list").tokenize('x');
            tool.option("file").positional();
            const std::string argument = front + std::string(500 * n, 'x');
            return measure([&] { ASSERT_NE(tool.parse({argument}), resultException); });
        });
    }
}

// What was handed out is handed out again, and what is refused leaves nothing behind.
TEST(Growth, EndsWhenTheSameIsAskedAgain) {
    PlainTool tool(flagUnknownIsError);
    tool.option("name");
    ASSERT_EQ(tool.parse({"--name=x", "--unknown"}), resultRuleBroken);
    const auto ask = [&](int i) {
        const std::string text = numbered("takes a block of its own ", static_cast<std::size_t>(i));
        for (const char* const refused : {"name", "too,many,names,here"}) {
            IOption& sink = tool->option(refused, "", vtString, "").synonym(text.c_str());
            sink.allowValue(text.c_str()).allowDeprecatedValue(i, 0).tag(text.c_str());
        }
        const Value value = tool.result->get("name", 0, INT_MAX);
        return std::array<const void*, 4>{tool->getDescription(false),
                                          tool->getDescription("name", false),
                                          tool->getErrorDesc(),
                                          value.text};
    };
    const auto first = ask(0);
    const std::size_t blocks = memory.liveBlocks();
    for (int i = 1; i < 1000; ++i) {
        ASSERT_EQ(ask(i), first);
    }
    EXPECT_LE(memory.liveBlocks(), blocks);
}

// There are no more beginnings than bytes in the names, whatever lengths are asked for.
TEST(Growth, OfBeginningsEndsWithTheNames) {
    constexpr std::size_t n = 2000;
    PlainTool tool;
    tool.option(std::string(n, 'x'), vtNull);
    for (std::size_t i = 0; i < n; ++i) {
        tool.option(numbered("name", i), vtNull);
    }
    Words line;
    for (std::size_t length = n / 2; length < n; length += 10) {
        line.push_back("-" + std::string(length, 'x'));
    }
    const std::size_t bytesOfLine = line.size() * n;
    EXPECT_LT(measure([&] { ASSERT_EQ(tool.parse(line), resultOk); }).bytes, 4 * bytesOfLine);
}

// With an item that is declared when the parse has begun.
TEST(Texts, OfManyOccurrencesStayWithTheirItems) {
    struct Declarer final : EventHandler {
        explicit Declarer(PlainTool& made) : tool(made) {}
        bool onUknownArgument(const char* argument) override {
            tool.option(argument);
            return false;
        }
        PlainTool& tool;
    };
    PlainTool tool;
    Declarer declarer(tool);
    tool->addHandler(&declarer);
    tool.option("x"), tool.option("y");
    constexpr std::size_t n = 1200;
    const std::string filling(200, 'v');  // so that these are many
    Words line{"late"};
    for (std::size_t i = 0; i < n; ++i) {
        for (const char* const name : {"-x=", "-y=", "-late="}) {
            line.push_back(numbered(name + filling, i));
        }
    }
    ASSERT_EQ(tool.parse(line), resultOk);
    std::vector<variant_t> kept;
    for (const char* const name : {"x", "y", "late"}) {
        for (Value v = tool.result->get(name, 0, INT_MAX); v.status == 0;
             v = tool.result->next(name)) {
            kept.push_back(v.value);
        }
    }
    tool.startNewResult();
    ASSERT_EQ(kept.size(), 3 * n);
    for (std::size_t i = 0; i < kept.size(); ++i) {
        EXPECT_EQ(kept[i].get<std::string>(), numbered(filling, i % n));
    }
}

TEST(Default, IsKeptOnceByAResult) {
    PlainTool tool;
    tool.option("x,y").defaultValue("text");
    const char* kept = nullptr;
    for (int i = 0; i < 2; ++i) {
        ASSERT_EQ(tool.parse({}), resultOk);
        for (const char* const name : {"x", "y"}) {
            const char* const text = tool.result->get(name, 0, INT_MAX).text;
            EXPECT_EQ(text, kept == nullptr ? kept = text : kept);
        }
    }
}

}  // namespace
}  // namespace zarn_3_3
