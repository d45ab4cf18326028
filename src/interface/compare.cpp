#include "interface/compare.h"

#include <cstring>
#include <cwchar>
#include <functional>

namespace plinth2 {

int string_compare(const char* left, const char* right) noexcept {
    return std::strcmp(left, right);
}

int string_compare(const wchar_t* left, const wchar_t* right) noexcept {
    return std::wcscmp(left, right);
}

int notype_ptr_compare(const void* left, const void* right) noexcept {
    if (left == right) {
        return 0;
    }
    // The operators order pointers into one object alone.
    return std::less<const void*>()(left, right) ? -1 : 1;
}

}  // namespace plinth2
