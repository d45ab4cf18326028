#include "support/assertion_double.h"

#include <utility>

#include "platform/assertion.h"

static std::string reported;

std::string takeAssertions() { return std::exchange(reported, {}); }

void TROV_2_18::debugAssertionFailed(const char* text) noexcept {
    reported += std::string(text) + "\n";
}
