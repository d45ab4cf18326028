#include "page_text.h"

#include <cstddef>

namespace vocabulary {
namespace {

constexpr char32_t replacement = 0xFFFD;

struct Form {
    std::size_t length;
    char32_t least;  // of the characters that need so many bytes
    unsigned char mark;
    unsigned char maskOfMark;
};

constexpr Form forms[] = {
    {1, 0,       0x00, 0x80},
    {2, 0x80,    0xC0, 0xE0},
    {3, 0x800,   0xE0, 0xF0},
    {4, 0x10000, 0xF0, 0xF8},
};

const Form* formOf(unsigned char first) {
    for (const Form& form : forms) {
        if ((first & form.maskOfMark) == form.mark) {
            return &form;
        }
    }
    return nullptr;
}

bool isCharacter(char32_t value, const Form& form) {
    const bool isSurrogate = value >= 0xD800 && value < 0xE000;
    return value >= form.least && value <= 0x10FFFF && !isSurrogate;
}

// Takes the first character, or one byte.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const Form* const form = formOf(first);
    const std::size_t length = form != nullptr ? form->length : 1;
    char32_t value = form != nullptr ? first & ~unsigned{form->maskOfMark} : 0;
    bool isWhole = form != nullptr && length <= text.size();
    for (std::size_t i = 1; isWhole && i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        isWhole = (byte & 0xC0) == 0x80;
        value = value << 6 | (byte & 0x3FU);
    }
    isWhole = isWhole && isCharacter(value, *form);
    text.remove_prefix(isWhole ? length : 1);
    return isWhole ? value : replacement;
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

bool isWhite(char32_t character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

void appendVisible(std::u32string& text, char32_t character) {
    if (!isControl(character)) {
        text += character;
        return;
    }
    constexpr char digits[] = "0123456789abcdef";
    text += U"\\x";
    text += static_cast<char32_t>(digits[character / 16]);
    text += static_cast<char32_t>(digits[character % 16]);
}

}  // namespace

std::u32string decoded(std::string_view text) {
    std::u32string characters;
    while (!text.empty()) {
        characters += takeCharacter(text);
    }
    return characters;
}

void appendEncoded(std::string& text, char32_t character) {
    const Form* form = forms;
    while (form->length < 4 && character >= form[1].least) {
        ++form;
    }
    unsigned shift = 6 * static_cast<unsigned>(form->length - 1);
    text += static_cast<char>(form->mark | character >> shift);
    while (shift != 0) {
        shift -= 6;
        text += static_cast<char>(0x80 | (character >> shift & 0x3F));
    }
}

std::u32string visible(std::string_view text) {
    std::u32string shown;
    for (const char32_t character : decoded(text)) {
        appendVisible(shown, character);
    }
    return shown;
}

std::vector<std::u32string> wordsOf(std::string_view text) {
    std::vector<std::u32string> words;
    bool isInWord = false;
    for (const char32_t character : decoded(text)) {
        if (isWhite(character)) {
            isInWord = false;
            continue;
        }
        if (!isInWord) {
            words.emplace_back();
        }
        appendVisible(words.back(), character);
        isInWord = true;
    }
    return words;
}

}  // namespace vocabulary
