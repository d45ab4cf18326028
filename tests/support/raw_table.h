// Operations by their numbers in the virtual table, as compiled tools call them.

#ifndef ZARN_TESTS_SUPPORT_RAW_TABLE_H
#define ZARN_TESTS_SUPPORT_RAW_TABLE_H

#include <cstddef>
#include <cstring>

namespace zarn_3_3::testing_support {

template <typename Function>
Function* operationAt(const void* object, std::size_t slot) {
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return reinterpret_cast<Function*>(table[slot]);
}

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_RAW_TABLE_H
