// Values of texts, many to a block of memory.

#ifndef ZARN_INTERFACE_SHARED_TEXTS_H
#define ZARN_INTERFACE_SHARED_TEXTS_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "plinth2/variant.h"

namespace plinth2 {

struct TextBlock;

// A text has owners of its own, as ever; its block counts the texts that have some, and goes with
// the last of them. Who keeps one value keeps the whole block, so blocks are small.
class SharedTexts {
public:
    SharedTexts() = default;
    SharedTexts(const SharedTexts&) = delete;
    SharedTexts& operator=(const SharedTexts&) = delete;
    ~SharedTexts() { close(); }

    // A copy of `text` up to its first NUL, vtString. Throws std::bad_alloc.
    variant_t keep(std::string_view text);

private:
    void open();
    void close() noexcept;

    TextBlock* block_ = nullptr;  // to which texts are added
    std::size_t used_ = 0;        // of its bytes
    std::size_t size_ = 0;
    std::int32_t texts_ = 0;  // that were ever in it
};

}  // namespace plinth2

#endif  // ZARN_INTERFACE_SHARED_TEXTS_H
