// Tools that were built against an older library call by slot: an operation that moves breaks them
// silently. This program is linked with the shared library, as a tool is.

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "zarn/zarn.h"

namespace zarn_3_3 {
namespace {

// The C++ ABI of 64-bit Linux stores the byte offset into the table in a pointer to a virtual
// member function, plus one on x86-64.
template <typename Member>
std::size_t virtualSlot(Member member) {
    static_assert(std::is_member_function_pointer_v<Member>);
    std::uintptr_t word = 0;
    std::memcpy(&word, &member, sizeof word);
#if !defined(__aarch64__)
    word -= 1;
#endif
    return word / sizeof(void*);
}

// The operation in a slot of the object's table, as a function that takes the object first.
template <typename Function>
Function* operationAt(const void* object, std::size_t slot) {
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return reinterpret_cast<Function*>(table[slot]);
}

TEST(Slots, EventHandler) {
    EXPECT_EQ(virtualSlot(&EventHandler::onOptionParse), 0u);
    EXPECT_EQ(virtualSlot(&EventHandler::onValueParse), 1u);
    EXPECT_EQ(virtualSlot(&EventHandler::onUknownArgument), 2u);
}

TEST(Slots, Parser) {
    using ForAll = const char* (IParser::*)(bool);
    using ForTopic = const char* (IParser::*)(const char*, bool);

    EXPECT_EQ(virtualSlot(&IParser::onOptionParse), 0u);
    EXPECT_EQ(virtualSlot(&IParser::onValueParse), 1u);
    EXPECT_EQ(virtualSlot(&IParser::onUknownArgument), 2u);
    EXPECT_EQ(virtualSlot(&IParser::destroy), 3u);
    EXPECT_EQ(virtualSlot(&IParser::createResult), 4u);
    EXPECT_EQ(virtualSlot(&IParser::option), 5u);
    EXPECT_EQ(virtualSlot(&IParser::action), 6u);
    EXPECT_EQ(virtualSlot(&IParser::modifier), 7u);
    EXPECT_EQ(virtualSlot(&IParser::isOptionDeclared), 8u);
    EXPECT_EQ(virtualSlot(&IParser::parseArgsVector), 9u);
    EXPECT_EQ(virtualSlot(&IParser::parseStream), 10u);
    EXPECT_EQ(virtualSlot(&IParser::getErrorDesc), 11u);
    EXPECT_EQ(virtualSlot<ForAll>(&IParser::getDescription), 12u);
    EXPECT_EQ(virtualSlot<ForTopic>(&IParser::getDescription), 13u);
    EXPECT_EQ(virtualSlot(&IParser::getActionModifiersDescription), 14u);
    EXPECT_EQ(virtualSlot(&IParser::getGlobalModifiersDescription), 15u);
    EXPECT_EQ(virtualSlot(&IParser::addHandler), 16u);
    EXPECT_EQ(virtualSlot(&IParser::removeHandler), 17u);
    EXPECT_EQ(virtualSlot(&IParser::addOptionFileOption), 18u);
    EXPECT_EQ(virtualSlot(&IParser::allowSimultaneousActions), 19u);
}

TEST(Slots, Result) {
    EXPECT_EQ(virtualSlot(&IParseResult::destroy), 0u);
    EXPECT_EQ(virtualSlot(&IParseResult::present), 1u);
    EXPECT_EQ(virtualSlot(&IParseResult::get), 2u);
    EXPECT_EQ(virtualSlot(&IParseResult::next), 3u);
    EXPECT_EQ(virtualSlot(&IParseResult::nextPosition), 4u);
    EXPECT_EQ(virtualSlot(&IParseResult::getFirstArgument), 5u);
    EXPECT_EQ(virtualSlot(&IParseResult::getNextArgument), 6u);
}

TEST(Slots, Option) {
    EXPECT_EQ(virtualSlot(&IOption::synonym), 0u);
    EXPECT_EQ(virtualSlot(&IOption::allowValue), 1u);
    EXPECT_EQ(virtualSlot(&IOption::allowDeprecatedValue), 2u);
    EXPECT_EQ(virtualSlot(&IOption::defaultValue), 3u);
    EXPECT_EQ(virtualSlot(&IOption::tokenize), 4u);
    EXPECT_EQ(virtualSlot(&IOption::positional), 5u);
    EXPECT_EQ(virtualSlot(&IOption::tag), 6u);
}

// One tool's work, each step called by its number in the table.
TEST(Slots, ServeAToolThatCallsByNumber) {
    using Declare = IOption*(void*, const char*, const char*, das_variant_type_t, const char*);
    IParser* parser = nullptr;
    ASSERT_EQ(createParser(&parser, flagUnknownIsError), resultOk);
    IParseResult* result = nullptr;
    ASSERT_EQ(operationAt<int(void*, IParseResult**)>(parser, 4)(parser, &result), resultOk);

    IOption* level = operationAt<Declare>(parser, 5)(parser, "level", "How much.", vtS32, "main");
    IOption* same = operationAt<IOption*(void*, const char*)>(level, 0)(level, "depth");
    EXPECT_EQ(same, level);
    operationAt<IOption*(void*, char)>(level, 4)(level, ':');
    EXPECT_TRUE((operationAt<bool(void*, const char*, bool, const char*)>(parser, 8)(
        parser, "depth", false, "main")));

    const char* const arguments[] = {"tool", "--depth=3:4", "--bad"};
    using Parse = int(void*, int, const char* const*, IParseResult*);
    EXPECT_EQ(operationAt<Parse>(parser, 9)(parser, 3, arguments, result), resultRuleBroken);
    EXPECT_STREQ(operationAt<const char*(void*)>(parser, 11)(parser), "Unknown option: --bad");

    EXPECT_TRUE(
        (operationAt<bool(void*, const char*, int, int)>(result, 1)(result, "level", 0, INT_MAX)));
    const Value first =
        operationAt<Value(void*, const char*, int, int)>(result, 2)(result, "level", 0, INT_MAX);
    EXPECT_EQ(first.value, variant_t(3));
    const Value second = operationAt<Value(void*, const char*)>(result, 3)(result, nullptr);
    EXPECT_STREQ(second.text, "4");

    operationAt<void(void*)>(result, 0)(result);
    operationAt<void(void*)>(parser, 3)(parser);
}

TEST(Layout, VariantKeepsItsPayloadBeforeItsType) {
    const variant_t number(0x1122334455667788);
    std::int64_t payload = 0;
    std::int32_t type = -1;
    std::memcpy(&payload, &number, sizeof payload);
    std::memcpy(&type, reinterpret_cast<const char*>(&number) + sizeof payload, sizeof type);
    EXPECT_EQ(payload, 0x1122334455667788);
    EXPECT_EQ(type, vtS64);
}

}  // namespace
}  // namespace zarn_3_3
