#include "plinth2/variant.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "interface/compare.h"
#include "interface/shared_texts.h"
#include "support/assertion_double.h"

namespace plinth2 {
namespace {

constexpr std::uint64_t u64Max = std::numeric_limits<std::uint64_t>::max();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// A value of a kind that has no constructor. The code stands behind the payload.
variant_t retyped(variant_t value, int code) {
    std::memcpy(reinterpret_cast<char*>(&value) + sizeof(std::int64_t), &code, sizeof code);
    return value;
}

variant_t blob(std::string_view bytes) { return variant_t::blob(bytes.data(), bytes.size()); }
variant_t wide(const wchar_t* text) { return variant_t::wideText(text); }
variant_t wideRef(const wchar_t* text) { return variant_t::borrowedWideText(text); }
variant_t ref(const char* text) { return variant_t(text, true); }

// The kinds without a name.
variant_t unsignedKind(long number) { return retyped(number, 5); }
variant_t floatingKind(double number) { return retyped(number, 10); }

const variant_t nothing;
const variant_t object = retyped("object", vtObject);
const variant_t nullText(nullptr, false);
const variant_t noBytes = variant_t::blob(nullptr, 0);

struct Pair {
    variant_t left;
    variant_t right;
    char relation;  // '!' for neither less nor equal, either way round
};

const Pair pairs[] = {
    {u64Max,            0,                '<'},
    {u64Max,            -1,               '='},
    {unsignedKind(1),   unsignedKind(-1), '<'},
    {floatingKind(1.5), 2.5,              '<'},
    {-1,                0.5,              '<'},
    {notANumber,        notANumber,       '!'},
    {"z",               "\x80",           '<'},
    {nullText,          ref(nullptr),     '='},
    {wide(L"a"),        wide(L"\u4e2d"),  '<'},
    {wide(L"a"),        wideRef(L"a"),    '='},
    {wide(nullptr),     wideRef(nullptr), '='},
    {blob("z"),         blob("aa"),       '<'},
    {blob("aa"),        blob("ab"),       '<'},
    {noBytes,           blob(""),         '='},
    {nothing,           "1",              '<'}, // the higher code first
    {wideRef(L"a"),     ref("a"),         '<'},
    {object,            object,           '='},
    {object,            blob(""),         '<'},
};

TEST(Variant, ComparesByKindAndValue) {
    for (const Pair& row : pairs) {
        SCOPED_TRACE(&row - pairs);
        const auto& [left, right, relation] = row;
        EXPECT_EQ(left < right, relation == '<');
        EXPECT_EQ(left == right, relation == '=');
        EXPECT_EQ(right == left, relation == '=');
        EXPECT_FALSE(right < left);
        variant_t copy = left;
        const variant_t moved = std::move(copy);
        EXPECT_EQ(moved.type(), left.type());
        EXPECT_TRUE(moved == left || relation == '!');
        EXPECT_EQ(copy.type(), vtNull);
    }
    EXPECT_EQ(takeAssertions(), "");
}

TEST(Variant, SharesOwnedDataAmongItsCopies) {
    char lent[] = "text";
    EXPECT_EQ(ref(lent).get<const char*>(), lent);
    variant_t value(lent);
    variant_t copy("dropped");
    copy = value;
    const char* const data = value.get<const char*>();
    variant_t& alias = copy;
    copy = alias;
    copy = std::move(alias);
    value.free_data();
    EXPECT_EQ(copy.get<const char*>(), data);
    EXPECT_STREQ(data, "text");
    EXPECT_EQ(variant_t(std::string("a\0b", 3)).get<std::string>(), "a");
    EXPECT_THROW(variant_t::blob("", std::numeric_limits<std::size_t>::max()), std::bad_alloc);
}

struct Header {
    std::uint64_t size;
    std::uint32_t owners;
};

Header headerOf(const variant_t& value) {
    const char* data = nullptr;
    std::memcpy(&data, &value, sizeof data);
    Header header{};
    std::memcpy(&header, data - sizeof header, sizeof header);
    return header;
}

// The two words in front of the data are a layout that other builds know.
TEST(Variant, KeepsSharedDataBehindItsSizeAndTheCountOfOwners) {
    EXPECT_EQ(headerOf("text").size, 5U);
    EXPECT_EQ(headerOf(nullText).size, 0U);
    EXPECT_EQ(headerOf(wide(L"ab")).size, 3 * sizeof(wchar_t));
    EXPECT_EQ(headerOf(blob("abc")).size, 3U);
    EXPECT_EQ(headerOf(noBytes).size, 0U);
    const variant_t value("text");
    EXPECT_EQ(headerOf(value).owners, 1U);
    const variant_t copy = value;
    EXPECT_EQ(headerOf(value).owners, 2U);
    std::thread([copy] { const variant_t another = copy; }).join();
    EXPECT_EQ(headerOf(value).owners, 2U);
}

// More than a block holds, some too long for one; who kept them is gone when they are dropped.
TEST(Variant, OutlivesTheBlockThatItsTextShares) {
    std::vector<variant_t> even;
    std::vector<variant_t> odd;
    const auto textOf = [](std::size_t i) { return std::string(i % 25 == 0 ? 2000 : i % 40, 'x'); };
    {
        SharedTexts texts;
        for (std::size_t i = 0; i < 1000; ++i) {
            (i % 2 == 0 ? even : odd).push_back(texts.keep(textOf(i) + std::string("\0y", 2)));
        }
    }
    const std::vector<variant_t> copies = odd;
    std::thread([&] { even.erase(even.begin() + 1, even.end()); }).join();
    std::thread dropping([&] { odd.clear(); });
    even.clear();
    dropping.join();
    for (std::size_t i = 0; i < copies.size(); ++i) {
        EXPECT_EQ(copies[i].get<std::string>(), textOf(2 * i + 1));
        EXPECT_EQ(headerOf(copies[i]).size, textOf(2 * i + 1).size() + 1);
        EXPECT_EQ(headerOf(copies[i]).owners, 1U);
    }
}

TEST(Variant, OrdersObjectsByTheirAddresses) {
    const char objects[2] = {};
    EXPECT_LT(notype_ptr_compare(objects, objects + 1), 0);
    EXPECT_GT(notype_ptr_compare(objects + 1, objects), 0);
}

TEST(Variant, ReadsNumbersAsTheyStand) {
    EXPECT_EQ(variant_t(-1).get<unsigned>(), 4294967295u);
    EXPECT_EQ(variant_t(4294967295u).get<int>(), -1);
    EXPECT_EQ(variant_t(u64Max).get<double>(), 18446744073709551616.0);
    EXPECT_EQ(variant_t(-1).get<double>(), -1.0);
    EXPECT_EQ(floatingKind(0.5).get<double>(), 0.5);
    EXPECT_EQ(takeAssertions(), "");
}

// Reading `value` as a T gives `harmless` and the report "can_get<" + name + ">()".
template <typename T>
void expectMisread(const variant_t& value, const std::string& name, const T& harmless) {
    EXPECT_EQ(value.get<T>(), harmless);
    EXPECT_EQ(takeAssertions(), "can_get<" + name + ">()\n");
}

TEST(MisusedVariant, IsReportedAndReadsAsSomethingHarmless) {
    expectMisread<bool>(0.5, "bool", true);
    expectMisread<int>(1L << 32 | 3, "s32_t", 3);
    expectMisread<unsigned>(3UL, "u32_t", 3);
    expectMisread<long>(0.0, "s64_t", 0);
    expectMisread<unsigned long>(nothing, "u64_t", 0);
    expectMisread<double>(nothing, "double", 0.0);
    expectMisread<std::string>(wide(L"a"), "const char*", "");
    variant_t freed(5);
    freed.free_data();
    expectMisread<int>(freed, "s32_t", 0);

    const variant_t unknown = retyped(1L, 19);
    EXPECT_FALSE(unknown == unknown);
    EXPECT_EQ(takeAssertions(), "m_type == vtNull && var.m_type == vtNull\n");
}

TEST(MisusedVariant, IsReportedWhenSharedDataIsMissing) {
    const std::string report = "m_value.m_data != NULL\nh != NULL\n";
    for (const int code : {vtString, vtWString, vtBlob, vtObject}) {
        variant_t value = retyped(ref(nullptr), code);
        EXPECT_TRUE(value == value);
        takeAssertions();
        variant_t(value).free_data();
        value.free_data();
        EXPECT_EQ(takeAssertions(), report + report + report) << code;  // copied, dropped twice
    }
}

}  // namespace
}  // namespace plinth2
