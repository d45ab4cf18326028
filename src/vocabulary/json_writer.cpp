#include "vocabulary/json_writer.h"

#include <algorithm>

#include "text/utf8.h"

namespace zarn_3_3::internal {
namespace {

// JSON is UTF-8 throughout, and tools may be declared in any bytes.
constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

// From 0x80 on bytes are looked at as characters: they may be no UTF-8.
bool isPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= ' ' && byte < 0x80 && c != '"' && c != '\\';
}

// The letter behind the backslash; 0 for what has none.
char shortEscape(char c) {
    switch (c) {
        case '"':
        case '\\':
            return c;
        case '\b':
            return 'b';
        case '\f':
            return 'f';
        case '\n':
            return 'n';
        case '\r':
            return 'r';
        case '\t':
            return 't';
        default:
            return 0;
    }
}

}  // namespace

// Written at once, and taken back by close when nothing was written in it: who opens need not know.
void JsonWriter::open(char bracket, const char* key) {
    const std::size_t start = text_.size();
    const bool wasOutsideEmpty = levels_.empty() || levels_.back().isEmpty;
    if (!levels_.empty()) {
        beginEntry(key);
    }
    text_ += bracket;
    levels_.push_back({bracket == '{' ? '}' : ']', true, start, wasOutsideEmpty});
}

void JsonWriter::close() {
    const Level closed = levels_.back();
    levels_.pop_back();
    // The whole stays even when it is empty: no text is no JSON.
    if (closed.isEmpty && !levels_.empty()) {
        text_.resize(closed.start);
        levels_.back().isEmpty = closed.wasOutsideEmpty;
        return;
    }
    beginLine();
    text_ += closed.end;
    if (levels_.empty()) {
        text_ += '\n';
    }
}

void JsonWriter::text(const char* key, std::string_view value) {
    if (!value.empty()) {
        beginEntry(key);
        quote(value);
    }
}

void JsonWriter::number(const char* key, long long value) {
    if (value != 0) {
        beginEntry(key);
        text_.append(std::to_string(value));
    }
}

void JsonWriter::flag(const char* key, bool value) {
    if (value) {
        beginEntry(key);
        text_.append("true");
    }
}

void JsonWriter::element(std::string_view value) {
    beginEntry({});
    quote(value);
}

void JsonWriter::beginEntry(const char* key) {
    if (!levels_.back().isEmpty) {
        text_ += ',';
    }
    levels_.back().isEmpty = false;
    beginLine();
    if (key != nullptr) {
        quote(key);
        text_.append(": ");
    }
}

void JsonWriter::beginLine() {
    text_ += '\n';
    text_.append(2 * levels_.size(), ' ');
}

// Most texts need no escape: they go over in one piece.
void JsonWriter::quote(std::string_view value) {
    text_ += '"';
    while (!value.empty()) {
        std::size_t plain = 0;
        while (plain < value.size() && isPlain(value[plain])) {
            ++plain;
        }
        text_.append(value.data(), plain);
        value.remove_prefix(plain);
        if (!value.empty()) {
            value.remove_prefix(writeSpecial(value));
        }
    }
    text_ += '"';
}

// Writes the character in front and returns its bytes.
std::size_t JsonWriter::writeSpecial(std::string_view value) {
    const std::size_t length = characterLength(value);
    if (length == 1) {
        escape(value.front());
    } else {
        text_.append(length == 0 ? replacementCharacter : value.substr(0, length));
    }
    // Of what is no character one byte alone: the next may begin one.
    return std::max<std::size_t>(length, 1);
}

void JsonWriter::escape(char c) {
    constexpr char digits[] = "0123456789abcdef";
    if (const char letter = shortEscape(c)) {
        text_ += '\\';
        text_ += letter;
    } else {
        // Control characters of ASCII alone come here, for which two digits are enough.
        text_.append("\\u00");
        text_ += digits[c / 16];
        text_ += digits[c % 16];
    }
}

}  // namespace zarn_3_3::internal
