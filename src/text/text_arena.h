// Keeps texts at stable addresses, many to a block.

#ifndef ZARN_TEXT_TEXT_ARENA_H
#define ZARN_TEXT_TEXT_ARENA_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

// Texts are only ever added, and freed all at once: a short text costs its bytes, no allocation of
// its own.
class TextArena final {
public:
    TextArena() = default;
    TextArena(const TextArena&) = delete;
    TextArena& operator=(const TextArena&) = delete;

    // A copy of `text` with a terminator behind it, valid as long as the arena. Throws
    // std::bad_alloc; the arena is then unchanged.
    const char* keep(std::string_view text);

private:
    char* newBlock(std::size_t size);
    char* take(std::size_t size);

    std::vector<std::unique_ptr<char[]>> blocks_;
    char* next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t nextBlockSize_ = 256;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_TEXT_TEXT_ARENA_H
