// How values compare: numbers by what they are worth, texts and blobs by what they hold, objects by
// their addresses, and values of different kinds by their codes, the higher one first.

#include <cstring>

#include "interface/compare.h"
#include "interface/shared_data.h"
#include "interface/variant_kinds.h"
#include "platform/assertion.h"
#include "plinth2/variant.h"

namespace plinth2 {
namespace {

using TROV_2_18::debugAssertionFailed;

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
    // The shorter one is less, whatever it holds. Without a byte there may be no block, and memcmp
    // takes no null pointer.
    if (leftSize != rightSize || leftSize == 0) {
        return compareNumbers(leftSize, rightSize);
    }
    return std::memcmp(left, right, leftSize);
}

}  // namespace

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
            // Numbers were compared before, and no other code is made.
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
        // Signed as soon as one of them is: -1 is then less than 1, and the largest unsigned number
        // is -1.
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
