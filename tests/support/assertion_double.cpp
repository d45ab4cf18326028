#include "support/assertion_double.h"

#include <mutex>
#include <utility>

#include "platform/assertion.h"

namespace {

std::mutex guard;
std::vector<std::string> reported;

}  // namespace

std::vector<std::string> takeAssertions() {
    const std::lock_guard<std::mutex> lock(guard);
    return std::exchange(reported, {});
}

namespace TROV_2_18 {

void debugAssertionFailed(const char* text) noexcept {
    const std::lock_guard<std::mutex> lock(guard);
    reported.emplace_back(text);
}

}  // namespace TROV_2_18
