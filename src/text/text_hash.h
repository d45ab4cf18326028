// The hash of names and other short texts.

#ifndef ZARN_TEXT_TEXT_HASH_H
#define ZARN_TEXT_TEXT_HASH_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/process_key.h"

namespace zarn_3_3::internal {

// Every argument is hashed, and for the beginnings of a large vocabulary every name of it, so this
// one is inlined and takes sixteen bytes in a step.
//
// Arguments may be chosen by somebody who wants them to collide. The hash has a key that only the
// process knows, and folds whole products: each bit of a text moves all bits of the hash in a way
// that depends on the key. The same text has another hash in another process, so nothing that is
// handed out may depend on it.
class TextHash {
public:
    static std::uint32_t of(std::string_view text) noexcept {
        const auto& key = TROV_2_18::system::processKey;
        const char* at = text.data();
        std::size_t left = text.size();
        std::uint64_t mixed = key.first ^ left;
        for (; left > 16; at += 16, left -= 16) {
            mixed =
                folded(load<std::uint64_t>(at) ^ key.second, load<std::uint64_t>(at + 8) ^ mixed);
        }
        const auto [front, back] = ends(at, left);
        mixed = folded(front ^ key.second, back ^ mixed);
        return static_cast<std::uint32_t>(mixed * (key.first | 1) >> 32);
    }

private:
    struct Words {
        std::uint64_t front;
        std::uint64_t back;
    };

    // Both halves of the product, one laid over the other.
    static std::uint64_t folded(std::uint64_t a, std::uint64_t b) noexcept {
        __extension__ using Product = unsigned __int128;
        const Product product = Product{a} * b;
        return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
    }

    template <typename Word>
    static Word load(const char* from) noexcept {
        Word word;
        std::memcpy(&word, from, sizeof word);
        return word;
    }

    // Up to sixteen bytes, in two loads that may overlap.
    static Words ends(const char* from, std::size_t count) noexcept {
        if (count >= 8) {
            return {load<std::uint64_t>(from), load<std::uint64_t>(from + count - 8)};
        }
        if (count >= 4) {
            return {load<std::uint32_t>(from), load<std::uint32_t>(from + count - 4)};
        }
        if (count >= 2) {
            return {load<std::uint16_t>(from), load<std::uint16_t>(from + count - 2)};
        }
        return {count == 1 ? load<std::uint8_t>(from) : std::uint64_t{0}, 0};
    }
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_TEXT_HASH_H
