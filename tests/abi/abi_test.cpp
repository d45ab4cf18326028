// Tools that were built against an older library call by slot, and know layouts: what moves breaks
// them silently. This program is linked with the shared library, as a tool is.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <set>
#include <string>
#include <type_traits>

#include "zarn/zarn.h"

namespace zarn_3_3 {
namespace {

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

// The C++ ABI of 64-bit Linux keeps the offset in the virtual table in a pointer to such a
// function, plus one where functions may have odd addresses.
template <typename Function, typename Class>
std::size_t slotOf(Function Class::*operation) {
    std::size_t word = 0;
    std::memcpy(&word, &operation, sizeof word);
    return word / sizeof(void*);
}

void expectAscending(std::initializer_list<std::size_t> slots) {
    std::size_t next = 0;
    for (const std::size_t slot : slots) {
        EXPECT_EQ(slot, next++);
    }
}

// With the types that are compiled into tools.
TEST(Slots, NeverMove) {
    using Text = const char*;
    using Type = das_variant_type_t;
    using Result = IParseResult*;
    expectAscending({
        slotOf<bool(Text)>(&IParser::onOptionParse),
        slotOf<bool(Text, const Value&)>(&IParser::onValueParse),
        slotOf<bool(Text)>(&IParser::onUknownArgument),
        slotOf<void()>(&IParser::destroy),
        slotOf<int(Result*)>(&IParser::createResult),
        slotOf<IOption&(Text, Text, Type, Text)>(&IParser::option),
        slotOf<IOption&(Text, Text, Type, Text)>(&IParser::action),
        slotOf<IOption&(Text, Text, Text, Type, Text)>(&IParser::modifier),
        slotOf<bool(Text, bool, Text)>(&IParser::isOptionDeclared),
        slotOf<int(int, const Text*, Result)>(&IParser::parseArgsVector),
        slotOf<int(Text, Result)>(&IParser::parseStream),
        slotOf<Text()>(&IParser::getErrorDesc),
        slotOf<Text(bool)>(&IParser::getDescription),
        slotOf<Text(Text, bool)>(&IParser::getDescription),
        slotOf<Text(Text, bool)>(&IParser::getActionModifiersDescription),
        slotOf<Text(bool)>(&IParser::getGlobalModifiersDescription),
        slotOf<bool(EventHandler*)>(&IParser::addHandler),
        slotOf<bool(EventHandler*)>(&IParser::removeHandler),
        slotOf<bool(Text, Text)>(&IParser::addOptionFileOption),
        slotOf<bool(const std::set<std::string>&)>(&IParser::allowSimultaneousActions),
    });
    expectAscending({
        slotOf<IOption&(Text)>(&IOption::synonym),
        slotOf<IOption&(const variant_t&)>(&IOption::allowValue),
        slotOf<IOption&(const variant_t&, const variant_t&)>(&IOption::allowDeprecatedValue),
        slotOf<IOption&(const variant_t&)>(&IOption::defaultValue),
        slotOf<IOption&(char)>(&IOption::tokenize),
        slotOf<IOption&()>(&IOption::positional),
        slotOf<IOption&(Text)>(&IOption::tag),
    });
    expectAscending({
        slotOf<void()>(&IParseResult::destroy),
        slotOf<bool(Text, int, int)>(&IParseResult::present),
        slotOf<Value(Text, int, int)>(&IParseResult::get),
        slotOf<Value(Text)>(&IParseResult::next),
        slotOf<int()>(&IParseResult::nextPosition),
        slotOf<int(Text*)>(&IParseResult::getFirstArgument),
        slotOf<int(Text*)>(&IParseResult::getNextArgument),
    });
}

TEST(Handlers, AskForNothing) {
    struct Silent final : EventHandler {
    } silent;
    EXPECT_TRUE(silent.onOptionParse("name"));
    EXPECT_TRUE(silent.onValueParse("name", Value()));
    EXPECT_TRUE(silent.onUknownArgument("argument"));
}

TEST(Misuse, EndsDebugBuildsAlone) {
    EXPECT_DEBUG_DEATH(variant_t(1).get<const char*>(), "^can_get<const char\\*>\\(\\)\n$");
}

}  // namespace
}  // namespace zarn_3_3
