#include "platform/process_key.h"

#include <sys/auxv.h>

#include <cstring>

namespace TROV_2_18::system {

// The kernel leaves sixteen random bytes to each process: no call that could fail, or wait.
ProcessKey::ProcessKey() noexcept {
    const unsigned long address = ::getauxval(AT_RANDOM);
    if (address != 0) {
        const char* bytes = nullptr;
        static_assert(sizeof bytes == sizeof address);
        std::memcpy(&bytes, &address, sizeof bytes);
        std::memcpy(&first, bytes, sizeof first);
        std::memcpy(&second, bytes + sizeof first, sizeof second);
    }
}

// Before any other static object, which may already hold a parser with tables in the order of the
// key.
[[gnu::init_priority(101)]] const ProcessKey processKey;

}  // namespace TROV_2_18::system
