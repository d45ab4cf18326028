#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <string>
#include <vector>

#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// The clock tells too little; a step that copies everything seen before shows in what it takes
// from memory.
template <typename Run>
Allocated measure(Run run) {
    const Allocated before = allocated();
    run();
    const Allocated after = allocated();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

// `taken(n)` tells what n elements take, without what it takes to prepare them.
template <typename Taken>
void expectLinear(Taken taken) {
    constexpr std::size_t n = 2000;
    taken(10);  // whatever is made once
    const Allocated small = taken(n);
    const Allocated large = taken(2 * n);

    EXPECT_LE(large.blocks * 10, small.blocks * 22 + 100) << small.blocks;
    EXPECT_LE(large.bytes * 10, small.bytes * 22 + 1000) << small.bytes;
}

std::string numbered(const std::string& prefix, std::size_t number) {
    return prefix + std::to_string(100000 + number);  // all of one length
}

struct CommandLine {
    const char* label;
    int flags;
    bool isPositional;  // an option for positional arguments is declared
    bool isHeard;
    const char* first;     // of the arguments; empty for none
    const char* argument;  // the others, each with a number behind
};

const CommandLine commandLines[] = {
    {"Options",                      0,                              false, false, "",     "--x="     },
    {"OptionsThatAreHeard",          0,                              false, true,  "",     "--x="     },
    {"OptionsWithTheirValuesInside", 0,                              false, false, "",     "--x "     },
    {"EachAnotherOption",            0,                              false, false, "",     "--no-name"},
    {"EachAnotherAbbreviation",      0,                              false, false, "",     "-cut"     },
    {"UnknownOptions",               0,                              false, true,  "",     "--unknown"},
    {"PlainArguments",               0,                              false, false, "--",   "plain"    },
    {"PlainPositional",              flagPositionalBehindTerminator, true,  false, "--",   "plain"    },
    {"Positional",                   0,                              true,  false, "",     "file"     },
    {"PositionalHeard",              0,                              true,  true,  "",     "file"     },
    {"PositionalTakesRest",          flagPositionalTakesRest,        true,  false, "file", "--x="     },
};

Allocated parseOf(const CommandLine& line, std::size_t n) {
    Tool tool(line.flags);
    tool.option("x");
    if (line.isPositional) {
        tool.option("files").positional();
    }
    if (line.isHeard) {
        tool.listen();
    }
    std::vector<std::string> texts{line.first};
    for (std::size_t i = 0; i < n; ++i) {
        tool.option(numbered("name", i), vtBool);
        tool.option(numbered("cut", i) + "-here", vtNull);
        texts.push_back(numbered(line.argument, i));
    }
    std::vector<const char*> argv{"tool"};
    for (const std::string& text : texts) {
        if (!text.empty()) {
            argv.push_back(text.c_str());
        }
    }
    return measure([&] {
        const int argc = static_cast<int>(argv.size());
        ASSERT_EQ(tool->parseArgsVector(argc, argv.data(), tool.result), resultOk);
    });
}

TEST(Growth, IsLinearInArguments) {
    for (const CommandLine& line : commandLines) {
        SCOPED_TRACE(line.label);
        expectLinear([&line](std::size_t n) { return parseOf(line, n); });
    }
}

TEST(Growth, IsLinearInATextAndItsPieces) {
    for (const char* repeated :
         {"--x=value\n# comment\n", "--x\nvalue\n", "--x=", "a-piece,", ","}) {
        SCOPED_TRACE(repeated);
        expectLinear([repeated](std::size_t n) {
            Tool tool;
            tool.option("x");
            std::string text = "--x=a,";
            for (std::size_t i = 0; i < n; ++i) {
                text += repeated;
            }
            return measure([&] { ASSERT_EQ(tool.parseText(text.c_str()), resultOk); });
        });
    }
}

// Each item is declared, found and given a synonym; then defaults, help and queries use them all.
TEST(Growth, IsLinearInDeclarations) {
    expectLinear([](std::size_t n) {
        Tool tool;
        return measure([&] {
            for (std::size_t i = 0; i < n; ++i) {
                const std::string name = numbered("name", i);
                const std::string section = numbered("section", i % 100);
                tool->option(name.c_str(), "Help", vtS32, section.c_str())
                    .synonym(numbered("synonym", i).c_str())
                    .defaultValue(1);
                ASSERT_TRUE(tool->isOptionDeclared(name.c_str(), false, nullptr));
            }
            ASSERT_EQ(tool.parseText("--unknown"), resultOk);
            ASSERT_EQ(tool.parse({"--unknown"}), resultOk);
            ASSERT_STRNE(tool->getDescription(false), "");
            for (std::size_t i = 0; i < n; ++i) {
                ASSERT_TRUE(tool.result->present(numbered("synonym", i).c_str(), 0, INT_MAX));
            }
        });
    });
}

TEST(Growth, EndsWhenTheTextsAreKnown) {
    Tool tool(flagUnknownIsError);
    ASSERT_EQ(tool.parse({"--unknown", "--x"}), resultRuleBroken);
    const char* const first = tool->getErrorDesc();
    const Allocated further = measure([&] {
        for (int i = 0; i < 1000; ++i) {
            ASSERT_EQ(tool->getErrorDesc(), first);
        }
    });
    EXPECT_EQ(further.blocks, 0U);
}

}  // namespace
}  // namespace zarn_3_3
