// Three-way comparisons: each returns a number below, equal to or above zero.

#ifndef ZARN_INTERFACE_COMPARE_H
#define ZARN_INTERFACE_COMPARE_H

namespace plinth2 {

// Narrow texts compare byte by byte, as unsigned bytes; wide ones character by character.
int string_compare(const char* left, const char* right) noexcept;
int string_compare(const wchar_t* left, const wchar_t* right) noexcept;

// The order of the addresses.
int notype_ptr_compare(const void* left, const void* right) noexcept;

}  // namespace plinth2

#endif  // ZARN_INTERFACE_COMPARE_H
