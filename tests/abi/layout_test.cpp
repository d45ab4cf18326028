// Numbers and layouts that are compiled into tools. They never change within a version.

#include <cstddef>
#include <type_traits>

#include "zarn/zarn.h"

namespace zarn_3_3 {

static_assert(vtBool == 0);
static_assert(vtS32 == 6 && vtU32 == 7 && vtS64 == 8 && vtU64 == 9);
static_assert(vtDouble == 11);
static_assert(vtString == 12 && vtWString == 13 && vtStringRef == 14 && vtWStringRef == 15);
static_assert(vtBlob == 16 && vtNull == 17 && vtObject == 18);
static_assert(sizeof(das_variant_type_t) == 4);

static_assert(resultOk == 0 && resultVetoed == 1 && resultRuleBroken == 2);
static_assert(resultException == 3 && resultOptionFileUnreadable == 6);

static_assert(flagUnknownIsError == 0x02);
static_assert(flagPositionalBehindTerminator == 0x04);
static_assert(flagPositionalWithoutDash == 0x08);
static_assert(flagPositionalTakesRest == 0x10);
static_assert(flagValuesStayWhole == 0x20);

static_assert(sizeof(variant_t) == 16 && alignof(variant_t) == 8);
static_assert(!std::is_polymorphic_v<variant_t> && !std::is_trivially_copyable_v<variant_t>);

static_assert(sizeof(Value) == 32 && alignof(Value) == 8);
static_assert(offsetof(Value, text) == 0);
static_assert(offsetof(Value, status) == 8);
static_assert(offsetof(Value, position) == 12);
static_assert(offsetof(Value, value) == 16);

static_assert(sizeof(WordWrappedText) == 32 && alignof(WordWrappedText) == 8);
static_assert(!std::is_polymorphic_v<WordWrappedText>);

static_assert(sizeof(EventHandler) == sizeof(void*));
static_assert(sizeof(IParser) == sizeof(void*));
static_assert(sizeof(std::set<std::string>) == 48);

}  // namespace zarn_3_3
