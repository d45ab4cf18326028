#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <set>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// Borrowed, so that only the library takes memory.
variant_t lent(const char* text) { return {text, true}; }

// Every kind of item and every setting. The texts are longer than a string keeps in itself.
void declareAll(IParser& parser) {
    parser.action("build-everything-from-scratch,b", "Builds what is there", vtNull, "a:Actions");
    parser.action("clean-everything-away,c", "Removes what was built", vtNull, "a:Actions");
    parser.action("hidden-action-for-support,h", "Supports", vtNull, "zarn_hidden");
    parser.option("optimise-the-whole-program,o", "A boolean", vtBool, "g:Global options")
        .defaultValue(true);
    parser.option("level-of-the-optimisation", "An integer", vtS32, "g")
        .allowValue(1)
        .allowValue(2)
        .synonym("level-by-another-name");
    parser.option("unsigned-number-of-workers", "A number", vtU32, "g").defaultValue(4U);
    parser.option("signed-number-of-something", "A number", vtS64, "g").tokenize(';');
    parser.option("address-in-hexadecimal-form", "A number", vtU64, "g").tokenize(0);
    parser.option("ratio-of-one-to-the-other", "A fraction", vtDouble, "g").defaultValue(0.25);
    parser
        .option("colour-of-the-output-text", "A colour that is described at length", vtString, "g")
        .allowValue(lent("always-and-everywhere"))
        .allowValue(lent("automatic-by-terminal"))
        .allowDeprecatedValue(lent("never-by-the-old-name"), lent("none-by-the-new-name"))
        .defaultValue(lent("automatic-by-terminal"));
    parser
        .modifier(
            "jobs-that-run-at-once", "build-everything-from-scratch", "", vtS32, "m:Modifiers")
        .tag("a-tag-beyond-the-small-buffer,another-tag");
    parser.option("files-to-be-read-from-disk", "The files", vtString, "").positional();
    parser.addOptionFileOption("A file with further arguments", "g");
}

const char* const goodLine =
    "--build-everything-from-scratch\n--clean\n--no-optimise-the-whole-program\n-o\n--level-of=2\n"
    "--level-by-another-name\n1,2\n--unsigned=7\n--signed=1;2;-3\n--address=0xFFFFFFFFFFFFFFFF\n"
    "--ratio=1e-3\n--colour=always\n--colour=never\n--jobs=3,4,5\na-positional-file-name.txt\n"
    "another-positional-file.txt,more\n--\na-plain-argument\n--another-plain-argument";

struct FailingLine {
    const char* line;
    int code;
};

const FailingLine failingLines[] = {
    {"-b\n--nothing-that-was-ever-declared",                       resultRuleBroken          },
    {"-b\n--level",                                                resultRuleBroken          },
    {"-b\n--level-of-the-optimisation=many-more-than-are-allowed", resultRuleBroken          },
    {"-b\n--level-of-the-optimisation=3",                          resultRuleBroken          },
    {"-b\n--level-of-the-optimisation",                            resultRuleBroken          },
    {"-b\n--colour-of-the-output-text=a",                          resultRuleBroken          },
    {"-b\n--build-everything-from-scratch=value",                  resultRuleBroken          },
    {"-b\n--optimise-the-whole-program=value",                     resultRuleBroken          },
    {"-b\n--unsigned-number-of-workers\n--colour",                 resultRuleBroken          },
    {"-b\n--signed-number-of-something=;;;;",                      resultRuleBroken          },
    {"-b\n-h",                                                     resultRuleBroken          },
    {"-c\n--jobs-that-run-at-once=1",                              resultRuleBroken          },
    {"--unsigned-number-of-workers=1",                             resultRuleBroken          },
    {"a-positional-file-name,veto-this-value",                     resultVetoed              },
    {"-b\n--option-file=/a-folder-that-is-nowhere/file",           resultOptionFileUnreadable},
};

// Refuses one value, and needs no memory for that.
class Listener final : public EventHandler {
public:
    bool onValueParse(const char*, const Value& value) override {
        return std::strcmp(value.text, "veto-this-value") != 0;
    }
};

// Swallows the warnings of a stream without memory.
class Swallow : private std::streambuf {
public:
    explicit Swallow(std::ostream& swallowed) : stream(swallowed), before(stream.rdbuf(this)) {}
    Swallow(const Swallow&) = delete;
    Swallow& operator=(const Swallow&) = delete;
    ~Swallow() override { stream.rdbuf(before); }

private:
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }

    std::ostream& stream;
    std::streambuf* before;
};

const std::set<std::string> together{"build-everything-from-scratch", "clean-everything-away"};

// A tool with the vocabulary that is heard, and a file that holds `goodLine`.
class World {
public:
    World() {
        declareAll(*tool.parser);
        EXPECT_TRUE(tool->allowSimultaneousActions(together));
        EXPECT_TRUE(tool->addHandler(&listener));
        std::ofstream(filePath) << goodLine;
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;
    ~World() { std::remove(filePath.c_str()); }

    int parse(const char* lines) { return tool->parseStream(lines, tool.result); }

    const std::string filePath =
        testing::TempDir() + "zarn-out-of-memory-" + std::to_string(getpid());
    const std::string fileLine = "--option-file=" + filePath;
    Tool tool{flagUnknownIsError | flagPositionalWithoutDash};
    Listener listener;
    Listener another;
    Swallow warnings{std::cerr};
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

Answer makeParser(void declare(IParser&)) {
    IParser* made = nullptr;
    const int code = createParser(&made, 0);
    if (made != nullptr) {
        declare(*made);
        made->destroy();
    }
    return code == resultOk && made == nullptr ? -1 : code;
}

Answer makeResult(World& world) {
    IParseResult* made = nullptr;
    const int code = world.tool->createResult(&made);
    if (made != nullptr) {
        made->destroy();
    }
    return code == resultOk && made == nullptr ? -1 : code;
}

Answer parseCommandLine(World& world) {
    const char* const line[] = {"tool", "-b", "--level-of", "1", "--colour=alw", "a-file-name"};
    return world.tool->parseArgsVector(6, line, world.tool.result);
}

Answer declareLater(World& world) {
    world.tool->option("declared-later,dl", "Once or twice", vtString, "later:Section")
        .synonym("declared-later-by-another-name");
    return resultOk;
}

struct Operation {
    std::string label;
    std::function<Answer(World&)> run;
    int code;
    bool readsValues;  // those of `goodLine`; others begin with an empty result
};

class Operations {
public:
    Operations() {
        addMakers();
        addTexts();
        addQueries();
        add("parseArgsVector", parseCommandLine);
        add("parseStream", [](World& w) { return w.parse(goodLine); });
        add("parseOptionFile", [](World& w) { return w.parse(w.fileLine.c_str()); });
        for (const FailingLine& failing : failingLines) {
            add(
                failing.line, [&](World& w) { return w.parse(failing.line); }, failing.code);
        }
    }

    std::vector<Operation> all;

private:
    template <typename Run>
    void add(const char* label, Run run, int code = resultOk, bool readsValues = false) {
        all.push_back({label, [run](World& w) { return Answer(run(w)); }, code, readsValues});
    }

    void addMakers() {
        add("createParser", [](World&) { return makeParser([](IParser&) {}); });
        add("declareAll", [](World&) { return makeParser(declareAll); });
        add("declareLater", declareLater);
        add("isOptionDeclared", [](World& w) { return w.tool->isOptionDeclared("c", true, "a"); });
        add("createResult", makeResult);
        add("addHandler", [](World& w) { return w.tool->addHandler(&w.another); });
        add("allow", [](World& w) { return w.tool->allowSimultaneousActions(together); });
    }

    void addTexts() {
        const char* const action = "build-everything-from-scratch";
        add("error", [](World& w) { return w.tool->getErrorDesc(); });
        add("help", [](World& w) { return w.tool->getDescription(false); });
        add("hidden help", [](World& w) { return w.tool->getDescription(true); });
        add("topic", [](World& w) { return w.tool->getDescription("colour-of-the-output", true); });
        add("no topic", [](World& w) { return w.tool->getDescription("no-topic-at-all", false); });
        add("modifiers",
            [action](World& w) { return w.tool->getActionModifiersDescription(action, false); });
        add("globals", [](World& w) { return w.tool->getGlobalModifiersDescription(false); });
    }

    void addQueries() {
        const char* const level = "level-by-another-name";
        add(
            "present", [](World& w) { return w.tool.result->present("b", 0, INT_MAX); }, 0, true);
        add(
            "get", [level](World& w) { return w.tool.result->get(level, 0, INT_MAX); }, 0, true);
        add(
            "last",
            [level](World& w) { return getLastValue(w.tool.result, level, 0, INT_MAX); },
            0,
            true);
    }
};

// There is something to ask for: the text of a failure, and values.
void fill(World& world, const Operation& operation) {
    EXPECT_EQ(world.parse("--a-text-that-no-short-string-holds"), resultRuleBroken);
    if (operation.readsValues) {
        EXPECT_EQ(world.parse(goodLine), resultOk);
    }
}

// Whatever happened before, the vocabulary grows and good arguments are parsed.
void expectUsable(World& world) {
    Tool& tool = world.tool;
    declareLater(world);
    EXPECT_TRUE(tool->isOptionDeclared("declared-later", false, "later"));
    tool.startNewResult();
    EXPECT_EQ(world.parse(goodLine), resultOk) << tool.error();
    EXPECT_EQ(tool.values("o"), "0|1");
    EXPECT_EQ(tool.values("level-by-another-name"), "2|1|2");
    EXPECT_EQ(tool.values("signed-number-of-something"), "1|2|-3");
    EXPECT_EQ(tool.values("colour-of-the-output-text"),
              "always-and-everywhere|never-by-the-old-name");
    EXPECT_EQ(tool.values("files-to-be-read-from-disk"),
              "a-positional-file-name.txt|another-positional-file.txt|more");
    EXPECT_THAT(tool.stored(), testing::HasSubstr("-- a-plain-argument --another-plain-argument"));

    // What is left of a group that was not added would join the next one.
    EXPECT_TRUE(
        tool->allowSimultaneousActions({"clean-everything-away", "hidden-action-for-support"}));
    tool.startNewResult();
    EXPECT_EQ(world.parse("-b\n-h"), resultRuleBroken);
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Runs the operation in a new world while the n-th allocation fails. Whether it was reached.
bool runDisturbed(const Operation& operation, const Answer& right, long n, Outage outage) {
    SCOPED_TRACE(operation.label + ", allocation " + std::to_string(n));
    World world;
    fill(world, operation);
    Answer answer(resultOk);
    bool struck = false;
    {
        const FailingNew failing(n, outage);
        answer = operation.run(world);
        struck = failing.struck();
    }
    const std::string text = answer.text;
    const bool isRight = answer.code == right.code && text == right.text;
    const bool isNoText = text.empty() || endsWith(text, "Unknown error handled.");
    const bool isLack = answer.code == resultException || (answer.code == right.code && isNoText);
    EXPECT_TRUE(isRight || (struck && isLack)) << answer.code << " '" << text << "'";
    expectUsable(world);
    return struck;
}

class OutOfMemory : public testing::TestWithParam<Outage> {};

// With the right answer, or the one that stands for a lack of memory.
TEST_P(OutOfMemory, IsAnsweredAndLeavesTheParserUsable) {
    long allocations = 0;
    for (const Operation& operation : Operations().all) {
        World undisturbed;
        fill(undisturbed, operation);
        const Answer right = operation.run(undisturbed);
        EXPECT_EQ(right.code, operation.code) << operation.label;
        allocations += forEveryAllocation(GetParam(), [&](long n, Outage outage) {
            return runDisturbed(operation, right, n, outage) && !HasFailure();
        });
    }
    EXPECT_GT(allocations, 300);
    RecordProperty("allocations", std::to_string(allocations));
}

INSTANTIATE_TEST_SUITE_P(Outages,
                         OutOfMemory,
                         testing::Values(Outage::once, Outage::lasting),
                         [](const auto& test) {
                             return test.param == Outage::once ? "Once" : "Lasting";
                         });

// "std::bad_alloc" fits a short string and is kept without memory; the text of this one is not.
TEST(OutOfMemoryInAHandler, KeepsALongExceptionTextFromEscaping) {
    class Thrower final : public EventHandler {
    public:
        bool onOptionParse(const char*) override {
            outage.emplace(1, Outage::lasting);
            throw prepared;
        }
        std::runtime_error prepared{std::string(200, 'x')};
        std::optional<FailingNew> outage;
    } thrower;
    World world;
    ASSERT_TRUE(world.tool->addHandler(&thrower));

    const int code = world.tool->parseStream("-b", world.tool.result);
    thrower.outage.reset();

    EXPECT_EQ(code, resultException);
    EXPECT_STREQ(world.tool->getErrorDesc(), "");
    EXPECT_TRUE(world.tool->removeHandler(&thrower));
    expectUsable(world);
}

}  // namespace
}  // namespace zarn_3_3
