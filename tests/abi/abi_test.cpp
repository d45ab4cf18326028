// Tools that were built against an older library call by slot, and know layouts: what moves breaks
// them silently. This program is linked with the shared library, as a tool is.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <set>
#include <string>
#include <type_traits>

#include "support/raw_table.h"
#include "zarn/zarn.h"

namespace zarn_3_3 {
namespace {

using testing::HasSubstr;

// Numbers and layouts that are compiled into tools. They never change within a version.
static_assert(vtBool == 0 && vtS32 == 6 && vtU32 == 7 && vtS64 == 8 && vtU64 == 9);
static_assert(vtDouble == 11 && vtString == 12 && vtWString == 13 && vtStringRef == 14);
static_assert(vtWStringRef == 15 && vtBlob == 16 && vtNull == 17 && vtObject == 18);
static_assert(resultOk == 0 && resultVetoed == 1 && resultRuleBroken == 2);
static_assert(resultException == 3 && resultOptionFileUnreadable == 6);
static_assert(flagUnknownIsError == 0x02 && flagPositionalBehindTerminator == 0x04);
static_assert(flagPositionalWithoutDash == 0x08 && flagPositionalTakesRest == 0x10);
static_assert(flagValuesStayWhole == 0x20 && sizeof(std::set<std::string>) == 48);
static_assert(sizeof(das_variant_type_t) == 4 && sizeof(variant_t) == 16);
static_assert(!std::is_polymorphic_v<variant_t> && !std::is_trivially_copyable_v<variant_t>);
static_assert(sizeof(Value) == 32 && offsetof(Value, text) == 0 && offsetof(Value, status) == 8);
static_assert(offsetof(Value, position) == 12 && offsetof(Value, value) == 16);
static_assert(sizeof(WordWrappedText) == 32 && !std::is_polymorphic_v<WordWrappedText>);
static_assert(sizeof(EventHandler) == sizeof(void*) && sizeof(IParser) == sizeof(void*));

// References travel as pointers.
template <typename Answer, typename... Arguments>
Answer call(const void* object, std::size_t slot, Arguments... arguments) {
    using Operation = Answer(const void*, Arguments...);
    return testing_support::operationAt<Operation>(object, slot)(object, arguments...);
}

class Listener final : public EventHandler {
public:
    bool onOptionParse(const char*) override { return hear('o', false); }
    bool onValueParse(const char*, const Value& value) override {
        return hear('v', value.position != 99);
    }
    bool onUknownArgument(const char*) override { return hear('u', true); }

    std::string heard;

private:
    bool hear(char event, bool answer) {
        heard += event;
        return answer;
    }
};

constexpr auto noText = static_cast<const char*>(nullptr);

void expectOptionTable(const IOption* item) {
    const variant_t one(1);
    const variant_t two(2);
    const variant_t byDefault(7);
    EXPECT_EQ(call<const IOption*>(item, 0, "by-another-name"), item);
    EXPECT_EQ(call<const IOption*>(item, 1, &one), item);
    EXPECT_EQ(call<const IOption*>(item, 2, &two, &one), item);
    EXPECT_EQ(call<const IOption*>(item, 3, &byDefault), item);
    EXPECT_EQ(call<const IOption*>(item, 4, ';'), item);
    EXPECT_EQ(call<const IOption*>(item, 5), item);
    EXPECT_EQ(call<const IOption*>(item, 6, "run"), item);
}

void expectResultTable(const IParseResult* result) {
    EXPECT_TRUE(call<bool>(result, 1, "by-another-name", 0, INT_MAX));
    const Value first = call<Value>(result, 2, "level", 0, INT_MAX);
    EXPECT_EQ(first.status, statusFound);
    EXPECT_STREQ(first.text, "1");
    EXPECT_EQ(call<int>(result, 4), first.position - 1) << "the number of the occurrence";
    EXPECT_EQ(call<Value>(result, 3, "level").status, statusFound);
    EXPECT_EQ(call<Value>(result, 3, "level").status, statusNotFound);
    const char* text = nullptr;
    EXPECT_EQ(call<int>(result, 5, &text), statusFound);
    EXPECT_STREQ(text, "first");
    EXPECT_EQ(call<int>(result, 6, &text), statusFound);
    EXPECT_STREQ(text, "second");
}

void expectTextTable(const void* parser) {
    EXPECT_THAT(call<const char*>(parser, 11), HasSubstr("'speed' requires a value"));
    EXPECT_THAT(call<const char*>(parser, 12, false), HasSubstr("Stops"));
    EXPECT_THAT(call<const char*>(parser, 13, "speed", false), HasSubstr("How fast"));
    EXPECT_THAT(call<const char*>(parser, 14, "run", false), HasSubstr("How fast"));
    EXPECT_THAT(call<const char*>(parser, 15, false), HasSubstr("Reads a file"));
}

TEST(Slots, AreCalledByTheirNumbers) {
    IParser* made = nullptr;
    ASSERT_EQ(createParser(&made, 0), resultOk);
    const void* const parser = made;
    IParseResult* result = nullptr;
    ASSERT_EQ(call<int>(parser, 4, &result), resultOk);

    // The registry may move what was declared, so that an item is asked before the next one.
    const auto* item = call<const IOption*>(parser, 5, "level", "How deep", vtS32, "g:General");
    expectOptionTable(item);
    call<const IOption*>(parser, 6, "run", "Runs", vtNull, "a:Actions");
    call<const IOption*>(parser, 6, "stop", "Stops", vtNull, "a:Actions");
    call<const IOption*>(parser, 7, "speed", "run", "How fast", vtS32, "g");
    EXPECT_TRUE(call<bool>(parser, 8, "run", true, "a"));
    EXPECT_TRUE(call<bool>(parser, 18, "Reads a file", "g"));
    EXPECT_TRUE(call<bool>(parser, 8, "option-file", false, noText));
    const std::set<std::string> both{"run", "stop"};
    EXPECT_TRUE(call<bool>(parser, 19, &both));

    Value value;
    EXPECT_TRUE(call<bool>(parser, 0, "level")) << "nobody listens";
    EXPECT_TRUE(call<bool>(parser, 1, "level", &value));
    Listener listener;
    EXPECT_TRUE(call<bool>(parser, 16, static_cast<EventHandler*>(&listener)));
    const char* const line[] = {"tool", "--run", "--stop", "--level=1;1", "--", "first", "second"};
    EXPECT_EQ(call<int>(parser, 9, 7, line, result), resultOk);
    EXPECT_EQ(listener.heard, "ooovv");
    EXPECT_TRUE(call<bool>(parser, 0, "level")) << "the answer is ignored";
    EXPECT_TRUE(call<bool>(parser, 1, "level", &value));
    EXPECT_TRUE(call<bool>(parser, 2, "level"));
    value.position = 99;
    EXPECT_FALSE(call<bool>(parser, 1, "level", &value)) << "the handler is asked";
    EXPECT_EQ(listener.heard, "ooovvovuv");
    EXPECT_TRUE(call<bool>(parser, 17, static_cast<EventHandler*>(&listener)));
    expectResultTable(result);

    EXPECT_EQ(call<int>(parser, 10, "--speed", result), resultRuleBroken);
    expectTextTable(parser);
    call<void>(parser, 3);
    call<void>(result, 0);
}

TEST(Slots, EndInDestructors) {
    IParser* parser = nullptr;
    ASSERT_EQ(createParser(&parser, 0), resultOk);
    IParseResult* result = nullptr;
    ASSERT_EQ(parser->createResult(&result), resultOk);
    call<void>(result, 8);  // the leak checker sees whether they free what they destroy
    call<void>(parser, 21);
}

TEST(Slots, OfHandlersAreCalledByTheirNumbers) {
    struct Silent final : EventHandler {
    } silent;
    Listener listener;
    const Value value;
    for (const EventHandler* const handler :
         {static_cast<const EventHandler*>(&silent), static_cast<const EventHandler*>(&listener)}) {
        EXPECT_EQ(call<bool>(handler, 0, "name"), handler == &silent);
        EXPECT_TRUE(call<bool>(handler, 1, "name", &value));
        EXPECT_TRUE(call<bool>(handler, 2, "argument"));
    }
    EXPECT_EQ(listener.heard, "ovu");
}

TEST(Misuse, EndsDebugBuildsAlone) {
    EXPECT_DEBUG_DEATH(variant_t(1).get<const char*>(), "^can_get<const char\\*>\\(\\)\n$");
}

}  // namespace
}  // namespace zarn_3_3
