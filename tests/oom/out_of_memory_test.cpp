#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

const char* const other = "level-by-another-name";
const char* const build = "build-everything-from-scratch";
const std::set<std::string> together{build, "clean-everything-away"};
const std::set<std::string> later{"clean-everything-away", "hidden-action-for-support"};

// Every kind of item and every setting. The texts are longer than a string keeps in itself, and
// borrowed, so that only the library takes memory.
void declareAll(IParser& parser) {
    parser.action("build-everything-from-scratch,b", "Builds what is there", vtNull, "a:Actions");
    parser.action("clean-everything-away,c", "Removes what was built", vtNull, "a:Actions");
    parser.action("hidden-action-for-support,h", "Supports", vtNull, "zarn_hidden");
    parser.option("optimise-the-whole-program,o", "", vtBool, "g:Global").defaultValue(true);
    IOption& level = parser.option("level-of-the-optimisation", "An integer", vtS32, "g");
    level.allowValue(1).allowValue(2).synonym(other);
    parser.option("address-in-some-form", "A number", vtU64, "g").tokenize(';').defaultValue(1);
    IOption& colour = parser.option("colour-of-the-output-text", "At length", vtString, "g");
    colour.allowValue({"always-and-everywhere", true}).allowValue({"automatic-by-terminal", true});
    colour.allowDeprecatedValue({"never-by-the-old-name", true}, {"none-by-the-new-name", true});
    IOption& jobs = parser.modifier("jobs-that-run-at-once", build, "", vtS32, "m:Modifiers");
    jobs.tag("a-tag-beyond-the-small-buffer,another-tag");
    parser.option("files-to-be-read-from-disk", "The files", vtString, "").positional();
    parser.addOptionFileOption("A file with further arguments", "g");
}

const char* const goodLine =
    "--build-everything-from-scratch\n--clean\n--no-optimise-the-whole-program\n-o\n--level-of=2\n"
    "--level-by-another-name\n1,2\n--address=1;0xFFFFFFFFFFFFFFFF\n--colour=always\n"
    "--colour=never\n--jobs=3,4,5\na-positional-file-name.txt,more\n--\na-plain-argument";

const std::pair<const char*, int> lines[] = {
    {goodLine,                                           resultOk                  },
    {"-b\n--nothing-that-was-ever-declared",             resultRuleBroken          },
    {"-b\n--level-of-the-optimisation=3",                resultRuleBroken          },
    {"-b\n--colour-of-the-output-text=a",                resultRuleBroken          },
    {"-b\n--address-in-some-form\n--colour",             resultRuleBroken          },
    {"-c\n--jobs-that-run-at-once=1",                    resultRuleBroken          },
    {"a-positional-file-name,veto-this-value",           resultVetoed              },
    {"-b\n--option-file=/a-folder-that-is-nowhere/file", resultOptionFileUnreadable},
};

// Refuses one value, and needs no memory for that.
struct Listener final : EventHandler {
    bool onValueParse(const char*, const Value& value) override {
        return std::strcmp(value.text, "veto-this-value") != 0;
    }
};

// A tool with the vocabulary that is heard. There is something to ask it for: values, and the text
// of a failure.
struct World {
    World() {
        std::cerr.setstate(std::ios::failbit);  // warnings would take memory there
        declareAll(*tool.parser);
        tool->allowSimultaneousActions(together);
        tool->addHandler(&listener);
        EXPECT_EQ(tool->parseStream(goodLine, filled.result), resultOk);
        EXPECT_EQ(tool.parseText("--a-text-that-no-short-string-holds"), resultRuleBroken);
    }

    Tool tool{flagUnknownIsError | flagPositionalWithoutDash};
    Tool filled;
    Listener listener;
    Listener another;
};

// What an operation answered: a code or a text.
struct Answer {
    Answer(int resultCode) : code(resultCode) {}
    Answer(bool isDone) : code(isDone ? resultOk : resultException) {}
    Answer(const char* answered) : text(answered) {}
    Answer(const Value& value) : code(value.status), text(value.as<const char*>()) {}

    int code = resultOk;
    const char* text = "";
};

int makeTool() {
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    if (createParser(&parser, 0) != resultOk) {
        return resultException;
    }
    declareAll(*parser);
    const int code = parser->createResult(&result);
    parser->destroy();
    if (code == resultOk) {
        result->destroy();
    }
    return code;
}

int parseCommandLine(Tool& tool) {
    const char* const line[] = {"tool", "-b", "--level-of", "1", "--colour=alw", "a-file-name"};
    return tool->parseArgsVector(6, line, tool.result);
}

int declareLater(Tool& tool) {
    tool->option("declared-later,dl", "Twice", vtString, "later:Section").synonym("a-later-name");
    return resultOk;
}

const std::function<Answer(World&)> operations[] = {
    [](World&) { return makeTool(); },
    [](World& w) { return parseCommandLine(w.tool); },
    [](World& w) { return declareLater(w.tool); },
    [](World& w) { return w.tool->isOptionDeclared("c", true, "a"); },
    [](World& w) { return w.tool->addHandler(&w.another); },
    [](World& w) { return w.tool->allowSimultaneousActions(together); },
    [](World& w) { return w.tool->getErrorDesc(); },
    [](World& w) { return w.tool->getDescription(false); },
    [](World& w) { return w.tool->getDescription("colour-of-the-output", true); },
    [](World& w) { return w.tool->getDescription("no-topic-at-all", false); },
    [](World& w) { return w.tool->getActionModifiersDescription(build, false); },
    [](World& w) { return w.tool->getGlobalModifiersDescription(false); },
    [](World& w) { return w.filled.result->get(other, 0, INT_MAX); },
    [](World& w) { return getLastValue(w.filled.result, other, 0, INT_MAX); },
};

// Whatever happened before, the vocabulary grows and good arguments are parsed.
void expectUsable(World& world) {
    Tool& tool = world.tool;
    declareLater(world.tool);
    tool.startNewResult();
    EXPECT_EQ(tool.parseText(goodLine), resultOk) << tool.error();
    EXPECT_EQ(tool.values("o") + " " + tool.values(other), "0|1 2|1|2");
    EXPECT_EQ(tool.values("files-to-be-read-from-disk"), "a-positional-file-name.txt|more");
    EXPECT_EQ(tool.stored(), "-- a-plain-argument");

    // What is left of a group that was not added would join the next one.
    EXPECT_TRUE(tool->allowSimultaneousActions(later));
    tool.startNewResult();
    EXPECT_EQ(tool.parseText("-b\n-h"), resultRuleBroken);
}

// Whether the n-th allocation, which fails, was reached. The answer then has to be right, or one
// that stands for a lack of memory.
template <typename Run>
bool runDisturbed(Run run, const Answer& right, long n, bool isLasting) {
    SCOPED_TRACE("allocation " + std::to_string(n));
    World world;
    memory = {0, 0, n, isLasting};
    const Answer answer = run(world);
    memory.left = 0;

    const std::string text = answer.text;
    const bool isNoText = text.empty() || text.find("Unknown error handled.") != text.npos;
    const bool isLack = answer.code == resultException || (answer.code == right.code && isNoText);
    const bool isRight = answer.code == right.code && text == right.text;
    EXPECT_TRUE(isRight || (memory.hasStruck && isLack)) << answer.code << text;
    expectUsable(world);
    return memory.hasStruck && !testing::Test::HasFailure();
}

template <typename Run>
void expectSteadiness(Run run, int code) {
    World undisturbed;
    const Answer right = run(undisturbed);
    EXPECT_EQ(right.code, code);
    for (const bool isLasting : {false, true}) {
        for (long n = 1; runDisturbed(run, right, n, isLasting); ++n) {
        }
    }
}

TEST(OutOfMemory, IsAnsweredAndLeavesTheParserUsable) {
    for (const auto& operation : operations) {
        SCOPED_TRACE("operation " + std::to_string(&operation - operations));
        expectSteadiness(operation, resultOk);
    }
    for (const auto& line : lines) {
        SCOPED_TRACE(line.first);
        expectSteadiness([&line](World& w) { return w.tool.parseText(line.first); }, line.second);
    }
}

TEST(OutOfMemory, WhileFilesAreReadIsAnsweredToo) {
    const std::string file = testing::TempDir() + "zarn_memory_" + std::to_string(getpid());
    std::ofstream(file) << "--jobs-that-run-at-once=1\n--\na-plain-argument-in-a-file";
    const std::string line = "-b\n--option-file=" + file;
    expectSteadiness([&line](World& w) { return w.tool.parseText(line.c_str()); }, resultOk);
    std::filesystem::remove(file);
}

// "std::bad_alloc" fits a short string and is kept without memory; the text of this one is not.
TEST(OutOfMemory, KeepsALongExceptionTextFromEscaping) {
    struct Thrower final : EventHandler {
        bool onOptionParse(const char*) override {
            memory = {0, 0, 1, true};
            throw prepared;
        }
        std::runtime_error prepared{std::string(200, 'x')};
    } thrower;
    World world;
    world.tool->addHandler(&thrower);
    const int code = world.tool.parseText("-b");
    memory.left = 0;
    EXPECT_EQ(code, resultException);
    EXPECT_EQ(world.tool.error(), "");
}

}  // namespace
}  // namespace zarn_3_3
