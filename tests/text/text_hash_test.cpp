#include "text/text_hash.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

namespace zarn_3_3::internal {
namespace {

std::string bytesOf(std::uint64_t word) {
    std::string bytes(sizeof word, '\0');
    std::memcpy(bytes.data(), &word, sizeof word);
    return bytes;
}

// A text that an unkeyed hash by one multiplication and a shift gives a value of our choice.
std::string inverted(std::uint64_t number) {
    std::uint64_t inverse = 0x9e3779b97f4a7c15;
    for (int i = 0; i < 5; ++i) {
        inverse *= 2 - 0x9e3779b97f4a7c15 * inverse;
    }
    const std::uint64_t word = ((std::uint64_t{0xABCD} << 32) | number) * inverse ^ 8;
    return bytesOf(word << 32 | word >> 32);
}

struct Family {
    const char* name;
    std::function<std::string(std::uint64_t)> text;
};

const Family families[] = {
    {"two high bytes",   [](std::uint64_t i) { return bytesOf(i << 48 | 0x615F5F5F5F5F); }        },
    {"two low bytes",    [](std::uint64_t i) { return bytesOf(i | 0x615F5F5F5F5F0000); }          },
    {"bits apart",       [](std::uint64_t i) { return bytesOf((i & 255) << 56 | (i >> 8) << 24); }},
    {"second word",      [](std::uint64_t i) { return "12345678" + bytesOf(i << 48); }            },
    {"both words alike", [](std::uint64_t i) { return bytesOf(i << 40) + bytesOf(i << 40); }      },
    {"early block",      [](std::uint64_t i) { return bytesOf(i << 44) + std::string(40, 'x'); }  },
    {"length alone",     [](std::uint64_t i) { return std::string(i, '\0'); }                     },
    {"numbered",         [](std::uint64_t i) { return "--name" + std::to_string(i); }             },
    {"inverted",         inverted                                                                 },
};

// What it takes to find room for each text in a table that is a third full, as the library's are.
TEST(TextHash, SpreadsTextsThatWereChosenToCollide) {
    constexpr std::size_t count = 20000;
    constexpr std::size_t size = 65536;
    for (const Family& family : families) {
        std::vector<bool> isUsed(size);
        std::unordered_set<std::uint32_t> hashes;
        std::size_t comparisons = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint32_t hash = TextHash::of(family.text(i));
            hashes.insert(hash);
            std::size_t at = hash % size;
            for (++comparisons; isUsed[at]; ++comparisons) {
                at = (at + 1) % size;
            }
            isUsed[at] = true;
        }
        EXPECT_LT(comparisons, 2 * count) << family.name;
        EXPECT_GT(hashes.size(), count - 10) << family.name;
    }
}

}  // namespace
}  // namespace zarn_3_3::internal
