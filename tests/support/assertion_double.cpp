#include "support/assertion_double.h"

#include "platform/assertion.h"

static thread_local std::string reported;

// What is reported is kept without taking memory.
std::string takeAssertions() {
    std::string taken = reported;
    reported.clear();
    reported.reserve(1 << 12);
    return taken;
}

void TROV_2_18::debugAssertionFailed(const char* text) noexcept {
    reported.append(text).append("\n");
}
