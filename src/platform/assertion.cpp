#include "platform/assertion.h"

#ifndef NDEBUG
#include <cstdio>
#include <cstdlib>
#endif

namespace TROV_2_18 {

#ifdef NDEBUG

void debugAssertionFailed(const char*) noexcept {}

#else

void debugAssertionFailed(const char* text) noexcept {
    std::fputs(text, stderr);
    std::fputc('\n', stderr);
    std::abort();
}

#endif

}  // namespace TROV_2_18
