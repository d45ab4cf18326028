// Keeps alive the texts that are handed out as plain character pointers.

#ifndef ZARN_TEXT_GARBAGE_H
#define ZARN_TEXT_GARBAGE_H

#include <string_view>

#include "text/kept_texts.h"

namespace zarn_3_3 {

// One copy of every text that ever went through it, for as long as the keeper lives: that is the
// whole lifetime rule of the pointers that a parser returns.
class Garbage final {
public:
    Garbage() = default;
    Garbage(const Garbage&) = delete;  // the pointers handed out belong to this object
    Garbage& operator=(const Garbage&) = delete;

    // The kept copy of `text`: equal texts give the same pointer, null gives an empty text.
    // Throws std::bad_alloc; the keeper is then unchanged.
    virtual const char* init(const char* text) { return text == nullptr ? "" : keep(text); }

    // The same for a text whose length is known.
    const char* keep(std::string_view text) { return texts_[texts_.keep(text)].data(); }

private:
    internal::KeptTexts texts_;
};

}  // namespace zarn_3_3

#endif  // ZARN_TEXT_GARBAGE_H
