#include "mdoc_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "page_text.h"

namespace vocabulary {
namespace {

// Longer words may be broken, behind each piece of them.
constexpr std::size_t longestWhole = 40;
constexpr std::size_t pieceLength = 20;

// As many characters as a macro has, or less.
constexpr std::size_t longestMacro = 3;

constexpr const char* nothing = "\\&";

bool isDelimiter(char character) {
    return std::string_view(".,:;?!()[]| ").find(character) != std::string_view::npos;
}

const char* escapeOf(char32_t character) {
    switch (character) {
        case U'\\':
            return "\\e";
        case U'-':
            return "\\-";
        case U'\'':
            return "\\(aq";
        case U'`':
            return "\\(ga";
        case U'^':
            return "\\(ha";
        case U'~':
            return "\\(ti";
        case U'"':
            return "\\(dq";
        case U' ':
            return "\\ ";
        default:
            return nullptr;
    }
}

void appendEscaped(std::string& text, char32_t character) {
    const char* const escape = escapeOf(character);
    if (escape != nullptr) {
        text.append(escape);
    } else if (character < 0x80) {
        text += static_cast<char>(character);
    } else {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "\\[u%04X]", static_cast<unsigned>(character));
        text.append(buffer);
    }
}

// Whether an empty escape has to stand here: "foo()" would be taken for a function, and the names
// of some systems for systems, that lack their markup.
bool isTell(const std::u32string& word, std::size_t place) {
    constexpr std::u32string_view tells[] = {U"()", U"nBSD", U"tBSD", U"eBSD", U"nFly"};
    for (const std::u32string_view tell : tells) {
        if (place != 0 && word.compare(place - 1, tell.size(), tell) == 0) {
            return true;
        }
    }
    return false;
}

std::string escaped(const std::u32string& word) {
    std::string text;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const bool isBreak = word.size() > longestWhole && i != 0 && i % pieceLength == 0;
        text.append(isBreak ? "\\:" : isTell(word, i) ? nothing : "");
        appendEscaped(text, word[i]);
    }
    return text;
}

// What a macro would take for another macro, for punctuation or for nothing at all, it does not
// with an empty escape in front.
const char* guardOf(const std::u32string& argument) {
    constexpr std::u32string_view harmless = U"abcdefghijklmnopqrstuvwxyz0123456789";
    const bool isOdd = argument.size() <= longestMacro &&
                       (argument.empty() || !isOneOf(argument.front(), harmless));
    return isOdd ? nothing : "";
}

// Nor would it take the end of its last argument for punctuation.
std::string withGuardedEnd(std::string typed) {
    const bool isCutOff = !typed.empty() && isDelimiter(typed.back());
    return typed.append(isCutOff ? nothing : "");
}

}  // namespace

std::string mdocWord(const std::u32string& word) {
    const bool isControl = !word.empty() && word.front() == U'.';
    return (isControl ? nothing : "") + escaped(word);
}

std::string mdocArgument(std::string_view text) {
    const std::u32string word = visible(text);
    return withGuardedEnd(guardOf(word) + escaped(word));
}

std::string mdocTitle(std::string_view text) {
    std::string title;
    for (const std::u32string& word : wordsOf(text)) {
        title.append(title.empty() ? "" : " ").append(guardOf(word)).append(escaped(word));
    }
    return title.empty() ? nothing : withGuardedEnd(title);
}

std::string mdocPageName(std::string_view text) {
    std::string name;
    const std::u32string shown = visible(text);
    for (const char32_t character : shown) {
        if (character >= U'a' && character <= U'z') {
            name += static_cast<char>(character - U'a' + U'A');
        } else if (character == U'-' || (character < 0x80 && escapeOf(character) == nullptr)) {
            appendEscaped(name, character);
        } else {
            name += '_';
        }
    }
    return withGuardedEnd(guardOf(shown) + name);
}

bool endsSentence(const std::u32string& word) {
    const std::size_t last = word.find_last_not_of(U")]\"'\u2019\u201D");
    return last != std::u32string::npos && isOneOf(word[last], U".!?");
}

}  // namespace vocabulary
