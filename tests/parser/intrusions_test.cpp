// Streams with a will of their own, and what they do to a parse while it runs.

#include <gtest/gtest.h>

#include <iostream>
#include <locale>
#include <stdexcept>

#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// A stream that runs code of the client each time when `cue` was written to it.
TappedStream acting(std::ostream& stream, std::string cue, std::function<void()> act) {
    return {stream,
            [cue = std::move(cue), act = std::move(act), line = std::string()](char c) mutable {
                line += c;
                if (line.find(cue) != std::string::npos) {
                    line.clear();
                    act();
                }
            }};
}

// Writes `warning` when it binds the value "old".
IOption& declareWithWarning(Tool& tool) {
    return tool.option("tone").allowValue("new").allowDeprecatedValue("old", "new");
}

TEST(HandlersAddedByAStream, HearFromThereOn) {
    Tool tool;
    declareWithWarning(tool);
    const TappedStream warnings = acting(std::cerr, "Warning", [&] { tool.listen(); });
    EXPECT_EQ(tool.parse({"--tone=new,old,new", "--tone=new", "-q"}), resultOk);
    EXPECT_EQ(tool.handler.events,
              "value tone=old; value tone=new; option tone; value tone=new; unknown -q");
}

TEST(StreamsThatChangeAnItem, LeaveTheOccurrenceItsOwn) {
    for (const char* const first : {"--tone=new", "zarnoption=zarnlogenable=1"}) {
        Tool tool;
        IOption& tone = declareWithWarning(tool);
        const auto change = [&] { tone.synonym("a name that moves the others").tokenize(0); };
        const TappedStream log = acting(std::cout, "adding values", change);
        const TappedStream warnings = acting(std::cerr, "Warning", change);
        EXPECT_EQ(tool.parse({first, "--tone=old,new"}), resultOk);
        EXPECT_EQ(tool.values("tone"), *first == '-' ? "new|old|new" : "old|new");
    }
}

TEST(StreamsThatThrow, ChangeNoParse) {
    for (std::ostream* const broken : {&std::cout, &std::cerr}) {
        Tool tool(flagUnknownIsError);
        declareWithWarning(tool);
        const TappedStream stream(*broken, [](char) { throw std::runtime_error("A full disk"); });
        broken->exceptions(std::ios::badbit | std::ios::failbit);
        const CapturedStream other(broken == &std::cout ? std::cerr : std::cout);
        EXPECT_EQ(tool.parse({"zarnoption=zarnlogenable=1", "--tone=old", "x"}), resultRuleBroken);
        EXPECT_TRUE(broken->bad()) << "it was never written";
        broken->exceptions(std::ios::goodbit);
        EXPECT_EQ(tool.error(), "Unknown option: x");
        EXPECT_EQ(tool.values("tone"), "old");
    }
}

// Reads numbers, and changes a character of the client's when it does.
struct Meddler final : std::num_get<char> {
    explicit Meddler(char& ofArgument) : victim(ofArgument) {}
    iter_type do_get(iter_type at,
                     iter_type end,
                     std::ios_base& stream,
                     std::ios_base::iostate& error,
                     long& number) const override {
        victim = '3';
        return std::num_get<char>::do_get(at, end, stream, error, number);
    }
    char& victim;
};

TEST(LocalesThatChangeAnArgument, DoNotReachIt) {
    Tool tool;
    tool.option("level", vtS32);
    char second[] = "--level=2";
    const char* const argv[] = {"tool", "--level=1", second};
    const std::locale before = std::locale::global({std::locale(), new Meddler(second[8])});
    EXPECT_EQ(tool->parseArgsVector(3, argv, tool.result), resultOk);
    std::locale::global(before);
    EXPECT_STREQ(second, "--level=3") << "nobody asked the locale";
    EXPECT_EQ(tool.values("level"), "1|2");
}

TEST(Trace, WritesNumbersAsTheFlagsOfTheStreamSay) {
    Tool tool(flagPositionalBehindTerminator);
    tool.option("file").positional();
    const CapturedStream log(std::cout);
    std::cout << std::showpos;
    EXPECT_EQ(tool.parse({"zarnoption=zarnlogenable=1", "--", "a"}), resultOk);
    std::cout << std::noshowpos;
    EXPECT_NE(log.text().find("recognize result: +0, message: \n"), std::string::npos);
    EXPECT_NE(log.text().find("parse result: +0, message: \n"), std::string::npos);
}

}  // namespace
}  // namespace zarn_3_3
