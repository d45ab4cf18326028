// Turns the bytes that a fuzzer makes up into decisions.

#ifndef ZARN_FUZZ_BYTES_H
#define ZARN_FUZZ_BYTES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace fuzzing {

// Reads an input once, from its front. At the end every answer is 0 or empty.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : left_(reinterpret_cast<const char*>(data), size) {}

    // A number below `limit`, which is 256 at most.
    std::size_t below(std::size_t limit) { return number<std::uint8_t>() % limit; }

    // A number of whatever bits.
    template <typename Number>
    Number number() {
        Number made{};
        const std::size_t size = std::min(sizeof made, left_.size());
        std::memcpy(&made, left_.data(), size);
        left_.remove_prefix(size);
        return made;
    }

    // The bytes up to the next NUL, which no argument can hold.
    std::string text(std::size_t longest) {
        std::string made(left_.substr(0, std::min(longest, left_.find('\0'))));
        left_.remove_prefix(std::min(made.size() + 1, left_.size()));
        return made;
    }

    // All that is left, where it stands.
    std::string_view rest() const { return left_; }

private:
    std::string_view left_;
};

}  // namespace fuzzing

#endif  // ZARN_FUZZ_BYTES_H
