#include "interface/shared_texts.h"

#include <cstring>
#include <new>

#include "interface/owned_text.h"
#include "interface/shared_data.h"

namespace plinth2 {
namespace {

constexpr std::size_t aligned(std::size_t size) {
    return (size + alignof(DataHeader) - 1) / alignof(DataHeader) * alignof(DataHeader);
}

}  // namespace

variant_t SharedTexts::keep(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    const std::size_t needed = aligned(sizeof(DataHeader) + text.size() + 1);
    if (needed > open_->size - open_->used) {
        if (needed > largestBlock / 4) {
            return ownedText(text);  // the rest of the block is not wasted
        }
        openNext();
    }
    Open& open = *open_;
    char* const at = reinterpret_cast<char*>(open.block) + open.used;
    auto* const header =
        new (at) DataHeader{text.size() + 1, {1}, static_cast<std::uint32_t>(open.used)};
    char* const copy = reinterpret_cast<char*>(header + 1);
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    open.used += needed;
    ++open.texts;
    return {vtString, copy};
}

}  // namespace plinth2
