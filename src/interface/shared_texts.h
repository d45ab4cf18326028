// Values of texts, many to a block of memory.

#ifndef ZARN_INTERFACE_SHARED_TEXTS_H
#define ZARN_INTERFACE_SHARED_TEXTS_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "plinth2/variant.h"

namespace plinth2 {

struct TextBlock;

// A text has owners of its own, as ever; its block counts the texts that have some, and goes with
// the last of them. Who keeps one value keeps the whole block, so blocks are small.
//
// Texts come in series, each of which is read and dropped as a whole. All share blocks at first;
// when they become more than caches hold, each series gets its own.
class SharedTexts {
public:
    SharedTexts() = default;
    SharedTexts(const SharedTexts&) = delete;
    SharedTexts& operator=(const SharedTexts&) = delete;
    ~SharedTexts();

    // How many series are to come. To be called before the first text, if at all.
    void expect(std::size_t series) noexcept { allSeries_ = series; }

    // The texts that follow are of this series, counted from 0. One that is none of all shares
    // blocks with the one before.
    void turnTo(std::size_t series) noexcept {
        if (apart_ != nullptr && series < allSeries_) {
            open_ = &apart_[series];
        }
    }

    // A copy of `text` up to its first NUL, vtString. Throws std::bad_alloc.
    variant_t keep(std::string_view text);

private:
    // With what an allocator puts in front it fills a page at most.
    static constexpr std::size_t largestBlock = 4096 - 16;

    // A block to which texts are added.
    struct Open {
        TextBlock* block = nullptr;
        std::size_t used = 0;  // of its bytes
        std::size_t size = 0;
        std::int32_t texts = 0;  // that were ever in it
    };

    [[gnu::noinline]] void openNext();
    static void close(const Open& open) noexcept;

    Open together_;
    std::unique_ptr<Open[]> apart_;  // one for each series, once there are many texts
    Open* open_ = &together_;
    std::size_t blocks_ = 0;  // that were ever opened
    std::size_t allSeries_ = 0;
};

}  // namespace plinth2

#endif  // ZARN_INTERFACE_SHARED_TEXTS_H
