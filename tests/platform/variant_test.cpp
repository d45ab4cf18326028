#include "plinth2/variant.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "support/assertion_double.h"

namespace plinth2 {
namespace {

using Texts = std::vector<std::string>;

constexpr std::int64_t s64Min = std::numeric_limits<std::int64_t>::min();
constexpr std::uint64_t u64Max = std::numeric_limits<std::uint64_t>::max();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// A value of a kind that has no constructor. The code stands behind the payload.
variant_t retyped(variant_t value, int code) {
    const das_variant_type_t type = static_cast<das_variant_type_t>(code);
    std::memcpy(
        reinterpret_cast<unsigned char*>(&value) + sizeof(std::int64_t), &type, sizeof type);
    return value;
}

variant_t blob(std::string_view bytes) { return variant_t::blob(bytes.data(), bytes.size()); }
variant_t wide(const wchar_t* text) { return variant_t::wideText(text); }
variant_t wideRef(const wchar_t* text) { return variant_t::borrowedWideText(text); }
variant_t ref(const char* text) { return variant_t(text, true); }

// The kinds without a name.
variant_t signedKind(long number) { return retyped(number, 4); }
variant_t unsignedKind(long number) { return retyped(number, 5); }
variant_t floatingKind(double number) { return retyped(number, 10); }

const variant_t nothing;
const variant_t nullText(nullptr, false);
const variant_t noBytes = variant_t::blob(nullptr, 0);

enum class Relation { less, equal, none };

struct Pair {
    const char* label;
    variant_t left;
    variant_t right;
    Relation relation;
};

const Pair pairs[] = {
    {"Booleans",                 false,             true,             Relation::less },
    {"UnsignedNumbers",          1u,                4294967295u,      Relation::less },
    {"WideUnsignedAboveSigned",  u64Max / 2,        u64Max,           Relation::less },
    {"UnnamedOddKindIsUnsigned", unsignedKind(1),   unsignedKind(-1), Relation::less },
    {"UnnamedEvenKindIsSigned",  signedKind(-1),    signedKind(1),    Relation::less },
    {"Doubles",                  -0.5,              0.25,             Relation::less },
    {"ZeroesOfBothSigns",        0.0,               -0.0,             Relation::equal},
    {"NotANumber",               notANumber,        notANumber,       Relation::none },
    {"NarrowFloating",           floatingKind(1.5), 2.5,              Relation::less },
    {"IntegerAndDouble",         5,                 5.0,              Relation::equal},
    {"NegativeBelowDouble",      -1,                0.5,              Relation::less },
    {"UnsignedIsNoNegative",     0.5,               u64Max,           Relation::less },
    {"UnsignedAndSigned",        u64Max,            0,                Relation::less },
    {"UnsignedBitsOfMinusOne",   u64Max,            -1,               Relation::equal},
    {"Texts",                    "a",               "b",              Relation::less },
    {"BytesAreUnsigned",         "z",               "\x80",           Relation::less },
    {"OwnedAndBorrowed",         "a",               ref("a"),         Relation::equal},
    {"NullReadsAsEmpty",         nullText,          "",               Relation::equal},
    {"BorrowedNullIsEmpty",      ref(nullptr),      "",               Relation::equal},
    {"WideTexts",                wide(L"a"),        wide(L"\u4e2d"),  Relation::less },
    {"WideOwnedAndBorrowed",     wide(L"a"),        wideRef(L"a"),    Relation::equal},
    {"WideNulls",                wide(nullptr),     wideRef(nullptr), Relation::equal},
    {"SmallerBlob",              blob("z"),         blob("aa"),       Relation::less },
    {"BlobsOfOneSize",           blob("aa"),        blob("ab"),       Relation::less },
    {"EqualBlobs",               blob("\x80"),      blob("\x80"),     Relation::equal},
    {"EmptyBlobs",               noBytes,           blob(""),         Relation::equal},
    {"Nothing",                  nothing,           nothing,          Relation::equal},
    {"HigherCodeFirst",          "1",               1,                Relation::less },
    {"NothingBeforeBlob",        nothing,           blob(""),         Relation::less },
    {"BorrowedWideBeforeNarrow", wideRef(L"a"),     ref("a"),         Relation::less },
};

TEST(Variant, ComparesByKindAndValue) {
    for (const auto& [label, left, right, relation] : pairs) {
        SCOPED_TRACE(label);
        EXPECT_EQ(left < right, relation == Relation::less);
        EXPECT_EQ(left == right, relation == Relation::equal);
        EXPECT_EQ(right == left, relation == Relation::equal);
        EXPECT_FALSE(right < left);
    }
    EXPECT_TRUE(takeAssertions().empty());
}

const std::pair<variant_t, das_variant_type_t> kinds[] = {
    {nothing,          vtNull      },
    {true,             vtBool      },
    {1,                vtS32       },
    {1u,               vtU32       },
    {1L,               vtS64       },
    {1UL,              vtU64       },
    {1LL,              vtS64       },
    {1ULL,             vtU64       },
    {1.0,              vtDouble    },
    {"1",              vtString    },
    {std::string("1"), vtString    },
    {ref("1"),         vtStringRef },
    {wide(L"1"),       vtWString   },
    {wideRef(L"1"),    vtWStringRef},
    {blob("1"),        vtBlob      },
};

TEST(Variant, KeepsItsKindAndLeavesNothingBehindWhenItMoves) {
    for (const auto& [value, type] : kinds) {
        SCOPED_TRACE(type);
        variant_t copy = value;
        const variant_t moved = std::move(copy);
        EXPECT_EQ(moved.type(), type);
        EXPECT_TRUE(moved == value);
        EXPECT_EQ(copy.type(), vtNull);
    }
}

TEST(Variant, SharesOwnedDataAmongItsCopies) {
    std::string source = "text";
    variant_t value(source);
    source = "else";
    variant_t copy("dropped");
    copy = value;
    const char* const data = value.get<const char*>();
    EXPECT_EQ(copy.get<const char*>(), data);

    variant_t& alias = copy;
    copy = alias;
    copy = std::move(alias);
    value.free_data();
    EXPECT_EQ(value.type(), vtNull);
    EXPECT_EQ(copy.get<const char*>(), data);
    EXPECT_STREQ(data, "text");

    value = std::move(copy);
    EXPECT_EQ(value.get<const char*>(), data);
}

TEST(Variant, BorrowsOrCopiesUpToTheFirstNul) {
    char lent[] = "lent";
    const variant_t value(lent, true);
    const variant_t copy = value;
    EXPECT_EQ(copy.get<const char*>(), lent);
    EXPECT_EQ(variant_t(std::string("a\0b", 3)).get<std::string>(), "a");
    EXPECT_STREQ(nullText.get<const char*>(), "");
}

TEST(Variant, LeavesWithBadAllocWhenABlobIsTooLarge) {
    EXPECT_THROW(variant_t::blob("", std::numeric_limits<std::size_t>::max()), std::bad_alloc);
}

TEST(Variant, MayBeCopiedAndDroppedOnSeveralThreads) {
    const variant_t value("shared");
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([own = value] {
            for (int round = 0; round < 1000; ++round) {
                const std::vector<variant_t> copies(4, own);
                ASSERT_TRUE(copies.back() == own);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(value.get<std::string>(), "shared");
}

TEST(Variant, ReadsNumbersAsTheyStand) {
    EXPECT_TRUE(variant_t(-2).get<bool>());
    EXPECT_FALSE(variant_t(0u).get<bool>());
    EXPECT_EQ(variant_t(-1).get<unsigned>(), 4294967295u);
    EXPECT_EQ(variant_t(4294967295u).get<int>(), -1);
    EXPECT_EQ(variant_t(-1).get<unsigned long long>(), u64Max);
    EXPECT_EQ(variant_t(u64Max).get<long long>(), -1);
    EXPECT_EQ(variant_t(s64Min).get<long>(), s64Min);
    EXPECT_EQ(variant_t(u64Max).get<unsigned long>(), u64Max);
    EXPECT_EQ(variant_t(u64Max).get<double>(), 18446744073709551616.0);
    EXPECT_EQ(variant_t(-1).get<double>(), -1.0);
    EXPECT_EQ(floatingKind(0.5).get<double>(), 0.5);
    EXPECT_TRUE(takeAssertions().empty());
}

TEST(Variant, GivesTheFallbackForWhatIsNoNarrowText) {
    EXPECT_STREQ(get_variant_value("owned", "fallback"), "owned");
    EXPECT_STREQ(get_variant_value({"borrowed", true}, "fallback"), "borrowed");
    EXPECT_STREQ(get_variant_value(wide(L"wide"), "fallback"), "fallback");
    EXPECT_TRUE(takeAssertions().empty());
}

// Reading `value` as a T gives `harmless` and the report "can_get<" + name + ">()".
template <typename T>
void expectMisread(const variant_t& value, const std::string& name, const T& harmless) {
    EXPECT_EQ(value.get<T>(), harmless);
    EXPECT_EQ(takeAssertions(), Texts{"can_get<" + name + ">()"});
}

TEST(MisusedVariant, IsReportedAndReadsAsSomethingHarmless) {
    expectMisread<bool>(0.5, "bool", true);
    expectMisread<int>(1L << 32 | 3, "s32_t", 3);
    expectMisread<unsigned>(3UL, "u32_t", 3);
    expectMisread<long>(0.0, "s64_t", 0);
    expectMisread<unsigned long>(nothing, "u64_t", 0);
    expectMisread<double>(nothing, "double", 0.0);
    expectMisread<std::string>(1, "const char*", "");
    expectMisread<std::string>(wide(L"a"), "const char*", "");

    const variant_t unknown = retyped(1L, 19);
    EXPECT_FALSE(unknown == unknown || unknown < unknown);
    EXPECT_EQ(takeAssertions(), Texts(2, "m_type == vtNull && var.m_type == vtNull"));
}

TEST(MisusedVariant, IsReportedWhenSharedDataIsMissing) {
    const Texts reports{"m_value.m_data != NULL", "h != NULL"};
    for (const int code : {vtString, vtWString, vtBlob, vtObject}) {
        SCOPED_TRACE(code);
        {
            const variant_t value = retyped(ref(nullptr), code);
            EXPECT_TRUE(value == value);
            takeAssertions();
            variant_t copy = value;
            EXPECT_EQ(takeAssertions(), reports);
            copy.free_data();
            EXPECT_EQ(takeAssertions(), reports);
        }
        EXPECT_EQ(takeAssertions(), reports);
    }
}

TEST(Variant, ComparesObjectsByAddress) {
    const variant_t one = retyped("object", vtObject);
    const variant_t other = retyped("object", vtObject);
    const variant_t copy = one;
    EXPECT_TRUE(copy == one);
    EXPECT_FALSE(one == other);
    EXPECT_NE(one < other, other < one);
}

}  // namespace
}  // namespace plinth2
