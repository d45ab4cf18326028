// What handlers hear, what their answers do, and what they may do meanwhile.

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// Of four handlers 1 and 2 are registered. At `moment`, as "1 option level", `act` answers.
class Handlers : public testing::Test {
protected:
    Handlers() {
        tool.option("level", vtS32);
        EXPECT_TRUE(tool->addHandler(&handlers[2]));
        EXPECT_TRUE(tool->addHandler(&handlers[1]));
        for (std::size_t i = 0; i < handlers.size(); ++i) {
            handlers[i].answer = [this, i](const std::string& event) {
                const std::string what = std::to_string(i) + " " + event;
                heard += (heard.empty() ? "" : "; ") + what;
                return what != moment || act();
            };
        }
    }

    Tool tool{flagUnknownIsError};
    std::array<testing_support::Recorder, 4> handlers;
    std::string heard;
    std::string moment;
    std::function<bool()> act = [] { return false; };
};

TEST_F(Handlers, FirstToRefuseAValueIsTheLastAsked) {
    moment = "1 value level=2";
    EXPECT_EQ(tool.parse({"--lev=1,2,3"}), resultVetoed);
    EXPECT_EQ(tool.error(),
              "Value '1,2,3' is not valid for option 'level' in argument '--lev=1,2,3'");
    EXPECT_EQ(heard,
              "1 option level; 2 option level; 1 value level=1; 2 value level=1; 1 value level=2");
    EXPECT_EQ(tool.stored(), "");

    moment = "1 option level";  // the answer is ignored
    EXPECT_EQ(tool.parse({"--level=4"}), resultOk);
    EXPECT_EQ(tool.walk("level"), "4@5") << "the refused value had its number";
}

TEST_F(Handlers, AreAllAskedAboutAnUnknownArgument) {
    for (const char* const taker : {"1 unknown -q", "2 unknown -q", ""}) {
        moment = taker;
        heard.clear();
        EXPECT_EQ(tool.parse({"-q"}), *taker == '\0' ? resultRuleBroken : resultOk) << taker;
        EXPECT_EQ(heard, "1 unknown -q; 2 unknown -q");
    }
}

TEST_F(Handlers, MayComeAndGoInsideAnEvent) {
    const auto changes = testing_support::rowsOf(
        R"(1 option level  | 1 | 1 option level; 2 option level; 2 value level=5
1 value level=5 | 2 | 1 option level; 2 option level; 1 value level=5
2 option level  | 0 | 1 option level; 2 option level; 0 value level=5; 1 value level=5; 2 value level=5
1 value level=5 | 3 | 1 option level; 2 option level; 1 value level=5; 2 value level=5; 3 value level=5)",
        3);
    for (const testing_support::Words& change : changes) {
        moment = change[0];
        heard.clear();
        EventHandler* const other = &handlers[std::stoul(change[1])];
        act = [&] { return tool->addHandler(other) || tool->removeHandler(other); };
        EXPECT_EQ(tool.parse({"--level=5"}), resultOk);
        EXPECT_EQ(heard, change[2]);
        act();
    }
    EXPECT_FALSE(tool->addHandler(nullptr));
    EXPECT_FALSE(tool->addHandler(tool.parser));
}

TEST_F(Handlers, ThatThrowEndTheParse) {
    const std::string text(1 << 20, 'x');
    for (const char* const at : {"1 option level", "2 value level=2", "1 unknown -q"}) {
        moment = at;
        act = [&]() -> bool { throw std::runtime_error(text); };
        EXPECT_EQ(tool.parse({"--level=1,2", "-q"}), resultException);
        EXPECT_EQ(tool.error(), text);
        act = []() -> bool { throw 5; };
        EXPECT_THROW(tool.parse({"--level=1,2", "-q"}), int);
    }
    tool.startNewResult();
    EXPECT_EQ(tool.parse({"--level=1,3"}), resultOk);
    EXPECT_EQ(tool.values("level"), "1|3");
}

class Wordless final : public std::exception {
public:
    const char* what() const noexcept override { return nullptr; }
};

TEST_F(Handlers, MayThrowWithoutAWord) {
    moment = "1 option level";
    act = []() -> bool { throw Wordless(); };
    EXPECT_EQ(tool.parse({"--level=1"}), resultException);
    EXPECT_EQ(tool.error(), "");
}

// With this a bound item changes, or moves, beneath the parse.
TEST(Handler, ChangesAnItemFromTheNextArgumentOn) {
    Tool tool;
    IOption& level = tool.option("level", vtS32);
    tool.listen().answer = [&](const std::string&) {
        return &level.synonym("depth").tokenize(0) == &level;
    };
    EXPECT_EQ(tool.parse({"--level=1,2,3", "--depth=4"}), resultOk);
    EXPECT_EQ(tool.stored(), "level=1|2|3|4(2)");
}

class PointerKeeper final : public EventHandler {
public:
    bool onOptionParse(const char* name) override { return pointers.emplace_back(name); }
    bool onUknownArgument(const char* text) override { return pointers.emplace_back(text); }

    std::vector<const char*> pointers;
};

TEST(Handler, MayKeepNamesAndArguments) {
    Tool tool;
    PointerKeeper keeper;
    tool.option("a name too long to live inside a string");
    tool->addHandler(&keeper);
    EXPECT_EQ(tool.parse({"an argument too long to live inside", "--a=x"}), resultOk);
    tool.startNewResult();
    for (int i = 0; i < 100; ++i) {
        tool.option("other" + std::to_string(i));
    }
    ASSERT_EQ(keeper.pointers.size(), 2u);
    EXPECT_STREQ(keeper.pointers[0], "an argument too long to live inside");
    EXPECT_STREQ(keeper.pointers[1], "a name too long to live inside a string");
}

}  // namespace
}  // namespace zarn_3_3
