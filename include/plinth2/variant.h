// The tagged value in which defaults, allowed values and parsed values travel.

#ifndef PLINTH2_VARIANT_H
#define PLINTH2_VARIANT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "zarn/export.h"

namespace plinth2 {

// What a variant_t holds. Options are declared with vtBool, vtS32, vtU32, vtS64, vtU64, vtDouble,
// vtString or, for a switch that takes no value, vtNull. The codes in between belong to other
// numeric kinds and have no text form: below 10 an odd code is unsigned and an even one signed.
enum das_variant_type_t : std::int32_t {
    vtBool = 0,         // boolean
    vtS32 = 6,          // signed 32-bit integer
    vtU32 = 7,          // unsigned 32-bit integer
    vtS64 = 8,          // signed 64-bit integer
    vtU64 = 9,          // unsigned 64-bit integer
    vtDouble = 11,      // double
    vtString = 12,      // shared copy of a narrow text
    vtWString = 13,     // shared copy of a wide text
    vtStringRef = 14,   // narrow text that the value does not own
    vtWStringRef = 15,  // wide text that the value does not own
    vtBlob = 16,        // shared block of bytes with its size
    vtNull = 17,        // nothing: the empty value
    vtObject = 18,      // shared pointer to an object; no value of this kind is made here
};

// A value together with the code of what it is.
//
// Copying a text or a block (codes 12, 13, 16) shares the data and counts the owners; it allocates
// nothing and cannot fail. The borrowed kinds (14, 15) copy the pointer alone: whoever lends the
// text keeps it unchanged for as long as the value or any copy of it, one inside a parser or a
// result included, is used.
//
// Threads: different values may be copied and dropped on different threads, also when they share
// their data. One value is used by one thread at a time.
//
// Exceptions: constructing an owned text, wide text or block throws std::bad_alloc when memory
// runs out; get<std::string>() too. Nothing else throws.
class ZARN_EXPORT variant_t {
    template <typename T>
    using EnableIfOtherPointer =
        std::enable_if_t<(std::is_pointer_v<T> ||
                          std::is_member_pointer_v<T>)&&!std::is_convertible_v<T, const char*>>;

public:
    // The empty value, vtNull.
    variant_t() noexcept = default;

    // Numbers. `long` counts as 64 bits wide: vtS64 and vtU64.
    variant_t(bool value) noexcept;                // vtBool
    variant_t(int value) noexcept;                 // vtS32
    variant_t(unsigned value) noexcept;            // vtU32
    variant_t(long value) noexcept;                // vtS64
    variant_t(unsigned long value) noexcept;       // vtU64
    variant_t(long long value) noexcept;           // vtS64
    variant_t(unsigned long long value) noexcept;  // vtU64
    variant_t(double value) noexcept;              // vtDouble

    // A narrow text: a copy of its own (vtString), or with `borrow` the pointer alone
    // (vtStringRef), which must outlive the value and every copy of it. A null text reads as the
    // empty one.
    variant_t(const char* text, bool borrow = false);

    // A copy of `text` up to its first NUL, vtString.
    variant_t(const std::string& text);

    // Any other pointer would silently become a boolean.
    template <typename Pointer, typename = EnableIfOtherPointer<Pointer>>
    variant_t(Pointer) = delete;

    // A shared copy of a wide text, vtWString, and a borrowed one, vtWStringRef. Null reads as the
    // empty text.
    static variant_t wideText(const wchar_t* text);
    static variant_t borrowedWideText(const wchar_t* text) noexcept;

    // A shared copy of `size` bytes at `bytes`, vtBlob. `bytes` may be null when `size` is 0.
    static variant_t blob(const void* bytes, std::size_t size);

    variant_t(const variant_t& other) noexcept;
    variant_t(variant_t&& other) noexcept  // leaves `other` empty
        : m_value(other.m_value), m_type(other.m_type) {
        other.m_type = vtNull;
    }
    variant_t& operator=(const variant_t& other) noexcept;
    variant_t& operator=(variant_t&& other) noexcept {  // leaves `other` empty
        variant_t moved(std::move(other));
        std::swap(m_value, moved.m_value);
        std::swap(m_type, moved.m_type);
        return *this;
    }
    ~variant_t() {
        if (isShared()) {
            free_data();
        }
    }

    das_variant_type_t type() const noexcept { return m_type; }

    // The value as a T: bool, int, unsigned, long, unsigned long, long long, unsigned long long,
    // double, const char* or std::string; no other T links.
    //
    // Numbers are read as they stand: nothing is range-checked, and a double is made of any
    // numeric kind. A text is read from vtString and vtStringRef; the pointer lives as long as the
    // data that it points into. Reading a value as what it is not is a programming error: builds
    // without NDEBUG report it and stop, others give the bits of a number as they stand, and for a
    // text the empty text.
    template <typename T>
    T get() const;

    // Releases the value; it is vtNull afterwards.
    void free_data() noexcept;

    // Numbers of any two kinds compare by value, narrow texts byte by byte whether owned or
    // borrowed, wide texts by their characters, blocks by size and then by bytes. Values of kinds
    // that do not compare are never equal, and the one with the *higher* code is the lesser.
    //
    // Mixed signed and unsigned numbers, and NaN, make this no strict weak order: keep such
    // mixtures out of std::sort.
    bool operator<(const variant_t& other) const noexcept;
    bool operator==(const variant_t& other) const noexcept;

private:
    union payload_t {
        std::int64_t integer;
        double number;
        const void* pointer;  // shared kinds: just behind the header of the data
    };

    // Inside the library.
    friend class SharedTexts;
    friend variant_t ownedText(std::string_view text);
    friend const char* heldText(const variant_t& value) noexcept;

    variant_t(das_variant_type_t type, const void* pointer) noexcept;

    bool isShared() const noexcept {
        return m_type == vtString || m_type == vtWString || m_type == vtBlob || m_type == vtObject;
    }
    double asDouble() const noexcept;
    int compareSameKind(const variant_t& other) const noexcept;
    int compare(const variant_t& other) const noexcept;

    payload_t m_value{0};
    das_variant_type_t m_type = vtNull;
};

template <>
ZARN_EXPORT bool variant_t::get<bool>() const;
template <>
ZARN_EXPORT int variant_t::get<int>() const;
template <>
ZARN_EXPORT unsigned variant_t::get<unsigned>() const;
template <>
ZARN_EXPORT long variant_t::get<long>() const;
template <>
ZARN_EXPORT unsigned long variant_t::get<unsigned long>() const;
template <>
ZARN_EXPORT long long variant_t::get<long long>() const;
template <>
ZARN_EXPORT unsigned long long variant_t::get<unsigned long long>() const;
template <>
ZARN_EXPORT double variant_t::get<double>() const;
template <>
ZARN_EXPORT const char* variant_t::get<const char*>() const;
template <>
ZARN_EXPORT std::string variant_t::get<std::string>() const;

// The narrow text of `value`, or `fallback` when it holds none. The pointer lives as long as the
// data of `value`.
inline const char* get_variant_value(const variant_t& value, const char* fallback) {
    const bool isNarrowText = value.type() == vtString || value.type() == vtStringRef;
    return isNarrowText ? value.get<const char*>() : fallback;
}

}  // namespace plinth2

#endif  // PLINTH2_VARIANT_H
