// The hash of names and other short texts.

#ifndef ZARN_OPTIONS_TEXT_HASH_H
#define ZARN_OPTIONS_TEXT_HASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zarn_3_3::internal {

// Every argument is hashed, and for the beginnings of a large vocabulary every name of it, so this
// one is inlined and takes eight bytes in a step.
class TextHash {
public:
    static std::uint32_t of(std::string_view text) noexcept {
        const char* at = text.data();
        std::size_t left = text.size();
        std::uint64_t mixed = left;
        for (; left > 8; at += 8, left -= 8) {
            mixed = mix(mixed ^ load<std::uint64_t>(at));
        }
        mixed = mix(mixed ^ lastBytes(at, left));
        return static_cast<std::uint32_t>(mixed >> 32);
    }

private:
    static std::uint64_t mix(std::uint64_t bits) noexcept {
        bits *= 0x9e3779b97f4a7c15;  // odd, with bits everywhere
        return bits ^ (bits >> 32);
    }

    template <typename Word>
    static Word load(const char* from) noexcept {
        Word word;
        std::memcpy(&word, from, sizeof word);
        return word;
    }

    // Up to eight bytes, in two loads that overlap.
    static std::uint64_t lastBytes(const char* from, std::size_t count) noexcept {
        if (count >= 4) {
            return std::uint64_t{load<std::uint32_t>(from)} << 32 |
                   load<std::uint32_t>(from + count - 4);
        }
        if (count >= 2) {
            return std::uint64_t{load<std::uint16_t>(from)} << 32 |
                   load<std::uint16_t>(from + count - 2);
        }
        return count == 1 ? load<std::uint8_t>(from) : 0;
    }
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_OPTIONS_TEXT_HASH_H
