#include "options/garbage.h"

namespace zarn_3_3 {

const char* Garbage::init(const char* text) { return text == nullptr ? "" : keep(text); }

const char* Garbage::keep(std::string_view text) {
    const std::uint32_t hash = internal::TextTable::hash(text);
    const std::uint32_t found =
        table.find(hash, [this, text](std::uint32_t number) { return texts[number] == text; });
    if (found != internal::TextTable::none) {
        return texts[found].data();
    }
    table.makeRoom();
    texts.emplace_back();
    try {
        texts.back() = {arena.keep(text), text.size()};
    } catch (...) {
        texts.pop_back();
        throw;
    }
    table.add(hash, static_cast<std::uint32_t>(texts.size() - 1));
    return texts.back().data();
}

}  // namespace zarn_3_3
