// Bits that nobody outside of the process can know.

#ifndef ZARN_PLATFORM_PROCESS_KEY_H
#define ZARN_PLATFORM_PROCESS_KEY_H

#include <cstdint>

namespace TROV_2_18::system {

// Other words in each process, the same ones as long as it runs.
struct ProcessKey {
    ProcessKey() noexcept;

    std::uint64_t first = 0x9e3779b97f4a7c15;
    std::uint64_t second = 0xd1b54a32d192ed03;
};

extern const ProcessKey processKey;

}  // namespace TROV_2_18::system

#endif  // ZARN_PLATFORM_PROCESS_KEY_H
