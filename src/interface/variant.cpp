#include "plinth2/variant.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <cwchar>
#include <limits>
#include <new>

#include "interface/compare.h"
#include "interface/owned_text.h"
#include "interface/sync.h"
#include "platform/assertion.h"

namespace plinth2 {
namespace {

using TROV_2_18::debugAssertionFailed;

// Stands in front of shared data.
struct DataHeader {
    std::uint64_t size;  // in bytes; a text's terminator counts
    std::atomic<std::int32_t> owners;
};

static_assert(sizeof(DataHeader) == 2 * sizeof(std::uint64_t));

DataHeader* headerOf(const void* data) noexcept {
    if (data == nullptr) {
        debugAssertionFailed("h != NULL");
        return nullptr;
    }
    return static_cast<DataHeader*>(const_cast<void*>(data)) - 1;
}

// A block for `size` bytes with one owner; at least `capacity` bytes can be written.
void* allocateData(std::size_t size, std::size_t capacity) {
    if (capacity > std::numeric_limits<std::size_t>::max() - sizeof(DataHeader)) {
        throw std::bad_alloc();
    }
    void* const block = ::operator new(sizeof(DataHeader) + capacity);
    return new (block) DataHeader{size, {1}} + 1;
}

// A null text becomes a block of size 0; it has a terminator all the same, so that it can be read.
template <typename Character>
void* copyText(const Character* text, std::size_t length) {
    const std::size_t size = (length + 1) * sizeof(Character);
    void* const data = allocateData(text != nullptr ? size : 0, size);
    if (text != nullptr) {
        std::memcpy(data, text, size - sizeof(Character));
    }
    static_cast<Character*>(data)[length] = Character{};
    return data;
}

void* copyNarrow(const char* text) {
    return copyText(text, text != nullptr ? std::strlen(text) : 0);
}

void* copyWide(const wchar_t* text) {
    return copyText(text, text != nullptr ? std::wcslen(text) : 0);
}

const char* narrowText(const void* data) noexcept {
    return data != nullptr ? static_cast<const char*>(data) : "";
}

const wchar_t* wideText(const void* data) noexcept {
    return data != nullptr ? static_cast<const wchar_t*>(data) : L"";
}

void acquireData(const void* data) noexcept {
    if (data == nullptr) {
        debugAssertionFailed("m_value.m_data != NULL");
    }
    if (DataHeader* const header = headerOf(data)) {
        sync_inc(header->owners);
    }
}

void releaseData(const void* data) noexcept {
    if (data == nullptr) {
        debugAssertionFailed("m_value.m_data != NULL");
    }
    DataHeader* const header = headerOf(data);
    if (header != nullptr && sync_dec(header->owners) == 0) {
        header->~DataHeader();
        ::operator delete(header);
    }
}

bool isNumber(das_variant_type_t type) noexcept { return type <= vtDouble; }
bool isFloating(das_variant_type_t type) noexcept { return type == 10 || type == vtDouble; }
bool isUnsigned(das_variant_type_t integer) noexcept { return integer % 2 != 0; }
bool isNarrowText(das_variant_type_t type) noexcept {
    return type == vtString || type == vtStringRef;
}
bool isWideText(das_variant_type_t type) noexcept {
    return type == vtWString || type == vtWStringRef;
}

template <typename Number>
int compareNumbers(Number left, Number right) noexcept {
    if (left < right) {
        return -1;
    }
    return left == right ? 0 : 1;
}

int compareBlobs(const void* left, const void* right) noexcept {
    const DataHeader* const leftHeader = headerOf(left);
    const DataHeader* const rightHeader = headerOf(right);
    const std::uint64_t leftSize = leftHeader != nullptr ? leftHeader->size : 0;
    const std::uint64_t rightSize = rightHeader != nullptr ? rightHeader->size : 0;
    if (leftSize != rightSize || leftSize == 0) {
        return compareNumbers(leftSize, rightSize);
    }
    return std::memcmp(left, right, leftSize);
}

template <typename Number, typename Payload>
Number bitsAs(const Payload& payload) noexcept {
    static_assert(sizeof(Number) == sizeof(Payload));
    Number number;
    std::memcpy(&number, &payload, sizeof number);
    return number;
}

// Reads the payload as it stands; `last` is the highest code for which that makes sense.
template <typename Payload>
std::int64_t integerBits(const Payload& payload,
                         das_variant_type_t type,
                         das_variant_type_t last,
                         const char* assertion) noexcept {
    if (type > last) {
        debugAssertionFailed(assertion);
    }
    return bitsAs<std::int64_t>(payload);
}

}  // namespace

variant_t::variant_t(bool value) noexcept : m_value{value}, m_type(vtBool) {}
variant_t::variant_t(int value) noexcept : m_value{value}, m_type(vtS32) {}
variant_t::variant_t(unsigned value) noexcept : m_value{value}, m_type(vtU32) {}
variant_t::variant_t(long value) noexcept : m_value{value}, m_type(vtS64) {}
variant_t::variant_t(unsigned long value) noexcept
    : m_value{static_cast<std::int64_t>(value)}, m_type(vtU64) {}
variant_t::variant_t(long long value) noexcept : m_value{value}, m_type(vtS64) {}
variant_t::variant_t(unsigned long long value) noexcept
    : m_value{static_cast<std::int64_t>(value)}, m_type(vtU64) {}
variant_t::variant_t(double value) noexcept : m_type(vtDouble) { m_value.number = value; }

variant_t::variant_t(das_variant_type_t type, const void* pointer) noexcept : m_type(type) {
    m_value.pointer = pointer;
}

variant_t::variant_t(const char* text, bool borrow)
    : variant_t(borrow ? vtStringRef : vtString, borrow ? text : copyNarrow(text)) {}

variant_t::variant_t(const std::string& text) : variant_t(ownedText(text)) {}

variant_t ownedText(std::string_view text) {
    const std::string_view upToNul = text.substr(0, text.find('\0'));
    return {vtString, copyText(upToNul.data(), upToNul.size())};
}

variant_t variant_t::wideText(const wchar_t* text) { return {vtWString, copyWide(text)}; }

variant_t variant_t::borrowedWideText(const wchar_t* text) noexcept { return {vtWStringRef, text}; }

variant_t variant_t::blob(const void* bytes, std::size_t size) {
    void* const data = allocateData(size, size);
    if (size != 0) {
        std::memcpy(data, bytes, size);
    }
    return {vtBlob, data};
}

variant_t::variant_t(const variant_t& other) noexcept
    : m_value(other.m_value), m_type(other.m_type) {
    if (isShared()) {
        acquireData(m_value.pointer);
    }
}

variant_t& variant_t::operator=(const variant_t& other) noexcept {
    return *this = variant_t(other);
}

void variant_t::free_data() noexcept {
    if (isShared()) {
        releaseData(m_value.pointer);
    }
    m_value.integer = 0;
    m_type = vtNull;
}

double variant_t::asDouble() const noexcept {
    if (!isNumber(m_type)) {
        debugAssertionFailed("can_get<double>()");
    }
    if (!isNumber(m_type) || isFloating(m_type)) {
        return bitsAs<double>(m_value);
    }
    return isUnsigned(m_type) ? static_cast<double>(bitsAs<std::uint64_t>(m_value))
                              : static_cast<double>(bitsAs<std::int64_t>(m_value));
}

template <>
bool variant_t::get<bool>() const {
    return integerBits(m_value, m_type, vtU64, "can_get<bool>()") != 0;
}

template <>
int variant_t::get<int>() const {
    return static_cast<int>(integerBits(m_value, m_type, vtU32, "can_get<s32_t>()"));
}

template <>
unsigned variant_t::get<unsigned>() const {
    return static_cast<unsigned>(integerBits(m_value, m_type, vtU32, "can_get<u32_t>()"));
}

template <>
long variant_t::get<long>() const {
    return integerBits(m_value, m_type, vtU64, "can_get<s64_t>()");
}

template <>
unsigned long variant_t::get<unsigned long>() const {
    return static_cast<unsigned long>(integerBits(m_value, m_type, vtU64, "can_get<u64_t>()"));
}

template <>
long long variant_t::get<long long>() const {
    return get<long>();
}

template <>
unsigned long long variant_t::get<unsigned long long>() const {
    return get<unsigned long>();
}

template <>
double variant_t::get<double>() const {
    return asDouble();
}

template <>
const char* variant_t::get<const char*>() const {
    if (!isNarrowText(m_type)) {
        debugAssertionFailed("can_get<const char*>()");
        return "";
    }
    return narrowText(m_value.pointer);
}

template <>
std::string variant_t::get<std::string>() const {
    return get<const char*>();
}

int variant_t::compareSameKind(const variant_t& other) const noexcept {
    const void* const left = m_value.pointer;
    const void* const right = other.m_value.pointer;
    switch (m_type) {
        case vtString:
        case vtStringRef:
            return string_compare(narrowText(left), narrowText(right));
        case vtWString:
        case vtWStringRef:
            return string_compare(plinth2::wideText(left), plinth2::wideText(right));
        case vtBlob:
            return compareBlobs(left, right);
        case vtObject:
            return notype_ptr_compare(left, right);
        case vtNull:
            return 0;
        default:
            debugAssertionFailed("m_type == vtNull && var.m_type == vtNull");
            return 1;
    }
}

// Above zero stands for "neither less nor equal" as well: values that do not compare, and NaN.
int variant_t::compare(const variant_t& other) const noexcept {
    if (isNumber(m_type) && isNumber(other.m_type)) {
        if (isFloating(m_type) || isFloating(other.m_type)) {
            return compareNumbers(asDouble(), other.asDouble());
        }
        if (isUnsigned(m_type) && isUnsigned(other.m_type)) {
            return compareNumbers(bitsAs<std::uint64_t>(m_value),
                                  bitsAs<std::uint64_t>(other.m_value));
        }
        return compareNumbers(bitsAs<std::int64_t>(m_value), bitsAs<std::int64_t>(other.m_value));
    }
    const bool isSameKind = m_type == other.m_type ||
                            (isNarrowText(m_type) && isNarrowText(other.m_type)) ||
                            (isWideText(m_type) && isWideText(other.m_type));
    if (isSameKind) {
        return compareSameKind(other);
    }
    return other.m_type < m_type ? -1 : 1;
}

bool variant_t::operator<(const variant_t& other) const noexcept { return compare(other) < 0; }

bool variant_t::operator==(const variant_t& other) const noexcept { return compare(other) == 0; }

}  // namespace plinth2
