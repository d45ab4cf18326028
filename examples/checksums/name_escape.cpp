#include "name_escape.h"

#include <string_view>

namespace checksums {
namespace {

// The byte at an index of one is written as the letter at the same index of the other.
constexpr std::string_view bytes = "\\\n\r";
constexpr std::string_view letters = "\\nr";

}  // namespace

bool needsEscape(const std::string& name) { return name.find_first_of(bytes) != std::string::npos; }

std::string escapeName(const std::string& name) {
    std::string text;
    for (const char byte : name) {
        const std::size_t index = bytes.find(byte);
        if (index == std::string_view::npos) {
            text += byte;
        } else {
            text += '\\';
            text += letters[index];
        }
    }
    return text;
}

std::optional<std::string> unescapeName(const std::string& text) {
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            name += text[i];
            continue;
        }
        ++i;
        const std::size_t index = i < text.size() ? letters.find(text[i]) : std::string_view::npos;
        if (index == std::string_view::npos) {
            return std::nullopt;
        }
        name += bytes[index];
    }
    return name;
}

}  // namespace checksums
