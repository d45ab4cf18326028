// What handlers hear, what their answers do, and what they may do meanwhile.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <ostream>
#include <stdexcept>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Recorder;
using testing_support::Tool;

class TwoHandlers : public testing::Test {
protected:
    TwoHandlers() {
        tool.option("level", vtS32);
        EXPECT_TRUE(tool->addHandler(&handlers[1]));
        EXPECT_TRUE(tool->addHandler(&handlers[0]));
        for (std::size_t i : {0u, 1u}) {
            handlers[i].answer = [this, i](const std::string& event) {
                heard += (heard.empty() ? "" : "; ") + std::to_string(i) + " " + event;
                return std::to_string(i) + " " + event != refused;
            };
        }
    }

    Tool tool{flagUnknownIsError};
    std::array<Recorder, 2> handlers;
    std::string heard;
    std::string refused;
};

TEST_F(TwoHandlers, HearInTheOrderOfTheirAddresses) {
    refused = "0 option level";  // the answer is ignored
    EXPECT_EQ(tool.parse({"--level=1,2"}), resultOk);
    EXPECT_EQ(heard,
              "0 option level; 1 option level; 0 value level=1; 1 value level=1; 0 value level=2; "
              "1 value level=2");
}

TEST_F(TwoHandlers, FirstToRefuseAValueIsTheLastAsked) {
    refused = "0 value level=2";
    EXPECT_EQ(tool.parse({"--lev=1,2,3"}), resultVetoed);
    EXPECT_EQ(tool.error(),
              "Value '1,2,3' is not valid for option 'level' in argument '--lev=1,2,3'");
    EXPECT_EQ(heard,
              "0 option level; 1 option level; 0 value level=1; 1 value level=1; 0 value level=2");
    EXPECT_EQ(tool.stored(), "");

    EXPECT_EQ(tool.parse({"--level=4"}), resultOk);
    EXPECT_EQ(tool.walk("level"), "4@5") << "the refused value had its number";
}

TEST_F(TwoHandlers, AreAllAskedAboutAnUnknownArgument) {
    refused = "0 unknown -q";
    EXPECT_EQ(tool.parse({"-q", "--level=1"}), resultOk);
    EXPECT_EQ(handlers[1].events, "unknown -q; option level; value level=1");
    refused = "1 unknown -q";
    EXPECT_EQ(tool.parse({"-q"}), resultOk);
    refused = "";
    EXPECT_EQ(tool.parse({"-q"}), resultRuleBroken);
}

TEST_F(TwoHandlers, AreRegisteredOnce) {
    EXPECT_FALSE(tool->addHandler(&handlers[0]));
    EXPECT_FALSE(tool->addHandler(nullptr));
    EXPECT_FALSE(tool->addHandler(tool.parser));
    EXPECT_TRUE(tool->removeHandler(&handlers[0]));
    EXPECT_FALSE(tool->removeHandler(&handlers[0]));
    tool.parse({"--level=1"});
    EXPECT_EQ(heard, "1 option level; 1 value level=1");
}

TEST(Handler, HearsOfUnknownArgumentsThatAreSkippedAnyway) {
    Tool tool;
    tool.listen();
    EXPECT_EQ(tool.parse({"a", ""}), resultOk);
    EXPECT_EQ(tool.handler.events, "unknown a; unknown ");
}

TEST(Handler, HearsTheFirstNameOfAllForAPositionalArgument) {
    Tool tool(flagPositionalTakesRest);
    tool.option("first,f", vtNull);
    tool.option("file,g").allowValue("marble").positional();
    tool.listen();
    EXPECT_EQ(tool.parse({"mar", "-f"}), resultRuleBroken);
    EXPECT_EQ(tool.handler.events, "option first; value file=marble; option first");
}

class PointerKeeper final : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return keep(name); }
    bool onValueParse(const char* name, const Value& value) override {
        number = value.position;
        EXPECT_EQ(value.status, statusFound);
        EXPECT_STREQ(value.as<const char*>(), value.value.get<const char*>());
        return keep(name);
    }
    bool onUknownArgument(const char* argument) override { return keep(argument); }

    std::vector<const char*> pointers;
    int number = 0;

private:
    bool keep(const char* text) {
        pointers.push_back(text);
        return true;
    }
};

TEST(Handler, MayKeepNamesAndArguments) {
    Tool tool;
    PointerKeeper keeper;
    tool.option("a name too long to live inside a string");
    tool->addHandler(&keeper);
    EXPECT_EQ(tool.parse({"an argument too long to live inside", "--a=x"}), resultOk);
    tool.startNewResult();
    tool->removeHandler(&keeper);
    for (int i = 0; i < 100; ++i) {
        tool.option("other" + std::to_string(i));
    }

    ASSERT_EQ(keeper.pointers.size(), 3u);
    EXPECT_STREQ(keeper.pointers[0], "an argument too long to live inside");
    EXPECT_STREQ(keeper.pointers[1], "a name too long to live inside a string");
    EXPECT_EQ(keeper.pointers[1], keeper.pointers[2]);
    EXPECT_EQ(keeper.number, tool.number(2));
}

TEST(Handler, NewItemsAndSynonymsCountFromTheNextArgument) {
    Tool tool(flagUnknownIsError);
    IOption& level = tool.option("level", vtS32);
    tool.listen().answer = [&](const std::string& event) {
        if (tool.handler.events == "option level") {
            level.synonym("depth").tokenize(0);
        } else if (event == "unknown -q") {
            tool.option("late", vtNull);
            return false;
        }
        return true;
    };
    EXPECT_EQ(tool.parse({"--level=1,2", "--depth=3", "-q", "--late"}), resultOk);
    EXPECT_EQ(tool.stored(), "level=1|2|3(2) late(1)");
    EXPECT_EQ(tool.values("depth"), "3");
}

std::string filePath() { return testing::TempDir() + "zarn_handlers_" + std::to_string(getpid()); }

// One line with every event, from the command line, from behind "--" and from a file. Handlers 0
// and 4 are not registered at first, and 2 is the one that acts.
struct Stage {
    Stage() {
        std::ofstream(filePath()) << "--level=7\n";
        tool.option("level", vtS32);
        tool->addOptionFileOption("", "");
        tool.option("file").positional();
        for (const std::size_t i : {1u, 2u, 3u}) {
            tool->addHandler(&handlers[i]);
        }
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage() { std::remove(filePath().c_str()); }

    int parse() {
        return tool.parse({"--level=1,2,3", "-u", "--option-file=" + filePath(), "--", "p"});
    }

    Tool tool{flagPositionalBehindTerminator | flagPositionalWithoutDash};
    std::array<Recorder, 5> handlers;
    int depth = 0;
};

// What handlers 1 to 3 hear of the whole line: 'a' all, 't' through the event, 'b' what was before
// it, '-' not looked at.
struct Deed {
    const char* label;
    const char* heard;
    int code;
    std::function<void(Stage&)> act;
};

void PrintTo(const Deed& deed, std::ostream* out) { *out << deed.label; }

void removeAll(Stage& stage) {
    for (Recorder& handler : stage.handlers) {
        stage.tool->removeHandler(&handler);
    }
}

void declareItems(Stage& stage) {
    for (int i = 0; i < 200; ++i) {
        stage.tool.option("new" + std::to_string(i)).synonym("other").positional();
    }
}

void walkTheResult(Stage& stage) {
    stage.tool.walk("option-file");
    stage.tool.stored();
    stage.tool->getDescription(false);
}

// Three parses within each other.
void parseDeeper(Stage& stage) {
    if (stage.depth++ < 3) {
        stage.handlers[2].answer = [&stage](const std::string&) {
            parseDeeper(stage);
            return true;
        };
        EXPECT_EQ(stage.tool.parseText("--level=9\nq\n"), resultOk);
    }
}

void parseElsewhere(Stage& stage) {
    IParseResult* const outer = stage.tool.result;
    EXPECT_EQ(stage.tool->createResult(&stage.tool.result), resultOk);
    EXPECT_EQ(stage.parse(), resultOk);
    stage.tool.result->destroy();
    stage.tool.result = outer;
}

const std::string longText(1 << 20, 'x');

const Deed deeds[] = {
    {"RemovesItself",           "ata", resultOk,        [](Stage& s) { s.tool->removeHandler(&s.handlers[2]); }},
    {"RemovesNext",             "aab", resultOk,        [](Stage& s) { s.tool->removeHandler(&s.handlers[3]); }},
    {"RemovesPrevious",         "taa", resultOk,        [](Stage& s) { s.tool->removeHandler(&s.handlers[1]); }},
    {"RemovesAll",              "ttb", resultOk,        removeAll                                              },
    {"AddsOneBefore",           "aaa", resultOk,        [](Stage& s) { s.tool->addHandler(&s.handlers[0]); }   },
    {"AddsOneBehind",           "aaa", resultOk,        [](Stage& s) { s.tool->addHandler(&s.handlers[4]); }   },
    {"DeclaresItems",           "aaa", resultOk,        declareItems                                           },
    {"WalksTheResult",          "aaa", resultOk,        walkTheResult                                          },
    {"ParsesIntoTheSameResult", "---", resultOk,        parseDeeper                                            },
    {"ParsesElsewhere",         "---", resultOk,        parseElsewhere                                         },
    {"ThrowsAStandardOne",
     "ttb",                            resultException,
     [](Stage&) { throw std::runtime_error(longText); }                                                        },
    {"ThrowsAnother",           "ttb", -1,              [](Stage&) { throw 5; }                                },
};

using DeedAtEvent = std::tuple<Deed, std::string>;

class HandlerDeeds : public testing::TestWithParam<DeedAtEvent> {
protected:
    // The events of the line that a handler hears when it hears as `how` says.
    static std::string expected(char how, const std::string& at) {
        const std::string all =
            "option level; value level=1; value level=2; value level=3; unknown -u; "
            "option option-file; value option-file=" +
            filePath() + "; option level; value file=p; option level; value level=7";
        const std::size_t event = all.find(at);
        return all.substr(0,
                          how == 'a'   ? all.size()
                          : how == 't' ? event + at.size()
                                       : event - std::min<std::size_t>(event, 2));
    }
};

TEST_P(HandlerDeeds, LeaveEverythingInOrder) {
    const auto& [deed, at] = GetParam();
    Stage stage;
    bool isDone = false;
    stage.handlers[2].answer = [&, act = deed.act, event = at](const std::string& heard) {
        if (heard == event && !isDone) {
            isDone = true;
            act(stage);
        }
        return true;
    };

    int code = -1;
    try {
        code = stage.parse();
    } catch (int thrown) {
        EXPECT_EQ(thrown, 5);
    }

    EXPECT_TRUE(isDone);
    EXPECT_EQ(code, deed.code) << stage.tool.error();
    EXPECT_EQ(stage.tool.error(), code == resultException ? longText : "");
    for (std::size_t i : {0u, 1u, 2u}) {
        if (deed.heard[i] != '-') {
            EXPECT_EQ(stage.handlers[i + 1].events, expected(deed.heard[i], at)) << i;
        }
    }
    const std::string values = stage.tool.values("level");
    if (stage.depth > 0) {
        EXPECT_EQ(std::count(values.begin(), values.end(), '9'), 3);
    } else if (code == resultOk) {
        EXPECT_EQ(values, "1|2|3|7");
    }
    stage.tool.startNewResult();
    EXPECT_EQ(stage.parse(), resultOk);
    EXPECT_NE(stage.tool.values("level").find("1|2|3"), std::string::npos);
}

const std::string moments[] = {"option level",
                               "value level=1",
                               "value level=2",
                               "unknown -u",
                               "value file=p",
                               "value level=7"};

INSTANTIATE_TEST_SUITE_P(AtEachEvent,
                         HandlerDeeds,
                         testing::Combine(testing::ValuesIn(deeds), testing::ValuesIn(moments)),
                         [](const auto& test) {
                             return std::get<0>(test.param).label +
                                    ("_" + std::to_string(test.index % std::size(moments)));
                         });

}  // namespace
}  // namespace zarn_3_3
