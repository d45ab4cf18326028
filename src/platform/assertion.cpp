#include "platform/assertion.h"

#ifndef NDEBUG
#include <cstdio>
#include <cstdlib>
#endif

namespace TROV_2_18 {

#ifdef NDEBUG

void debugAssertionFailed(const char*) noexcept {}

#else

// GCOVR_EXCL_START: ends the program, and with it the counts of what was reached
void debugAssertionFailed(const char* text) noexcept {
    std::fputs(text, stderr);
    std::fputc('\n', stderr);
    std::abort();
}
// GCOVR_EXCL_STOP

#endif

}  // namespace TROV_2_18
