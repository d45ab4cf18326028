// Tools that were built against an older library call by slot, and know layouts: what moves breaks
// them silently. This program is linked with the shared library, as a tool is.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
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

// The C++ ABI of 64-bit Linux stores the byte offset into the table in a pointer to a virtual
// member function, plus one on x86-64.
template <typename Member>
std::size_t slot(Member member) {
    std::size_t word = 0;
    std::memcpy(&word, &member, sizeof word);
    return word / sizeof(void*);
}

template <typename... Members>
void expectSlotsFrom(std::size_t first, Members... members) {
    for (const std::size_t found : {slot(members)...}) {
        EXPECT_EQ(found, first++);
    }
}

TEST(Slots, NeverMove) {
    using H = EventHandler;
    using P = IParser;
    using R = IParseResult;
    using O = IOption;
    const auto ofAll = static_cast<const char* (P::*)(bool)>(&P::getDescription);
    const auto ofTopic = static_cast<const char* (P::*)(const char*, bool)>(&P::getDescription);
    expectSlotsFrom(0, &H::onOptionParse, &H::onValueParse, &H::onUknownArgument);
    expectSlotsFrom(0, &P::onOptionParse, &P::onValueParse, &P::onUknownArgument);
    expectSlotsFrom(3, &P::destroy, &P::createResult, &P::option, &P::action, &P::modifier);
    expectSlotsFrom(8, &P::isOptionDeclared, &P::parseArgsVector, &P::parseStream);
    expectSlotsFrom(11, &P::getErrorDesc, ofAll, ofTopic);
    expectSlotsFrom(14, &P::getActionModifiersDescription, &P::getGlobalModifiersDescription);
    expectSlotsFrom(16, &P::addHandler, &P::removeHandler, &P::addOptionFileOption);
    expectSlotsFrom(19, &P::allowSimultaneousActions);
    expectSlotsFrom(0, &R::destroy, &R::present, &R::get, &R::next, &R::nextPosition);
    expectSlotsFrom(5, &R::getFirstArgument, &R::getNextArgument);
    expectSlotsFrom(0, &O::synonym, &O::allowValue, &O::allowDeprecatedValue, &O::defaultValue);
    expectSlotsFrom(4, &O::tokenize, &O::positional, &O::tag);
}

TEST(Misuse, EndsDebugBuildsAlone) {
    EXPECT_DEBUG_DEATH(variant_t(1).get<const char*>(), "^can_get<const char\\*>\\(\\)\n$");
}

}  // namespace
}  // namespace zarn_3_3
