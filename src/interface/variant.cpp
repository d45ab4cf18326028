#include "plinth2/variant.h"

#include <cstring>
#include <cwchar>
#include <limits>
#include <new>

#include "interface/owned_text.h"
#include "interface/shared_data.h"
#include "interface/sync.h"
#include "interface/variant_kinds.h"
#include "platform/assertion.h"

namespace plinth2 {
namespace {

using TROV_2_18::debugAssertionFailed;

// A block for `size` bytes with one owner; at least `capacity` bytes can be written.
void* allocateData(std::size_t size, std::size_t capacity) {
    // The sum would begin again at zero, and the block be too small.
    if (capacity > std::numeric_limits<std::size_t>::max() - sizeof(DataHeader)) {
        throw std::bad_alloc();
    }
    void* const block = ::operator new(sizeof(DataHeader) + capacity);
    return new (block) DataHeader{size, {1}, 0} + 1;
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
        freeData(header);
    }
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

// Numbers stand in 64 bits whatever their type, so that comparisons and readers know one width.
// Borrowed texts are never touched: whoever lends them keeps them.
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
    // The copy first: the data of a value that is assigned to itself has an owner all the time.
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

}  // namespace plinth2
