#include "vocabulary/json_writer.h"

#include "text/utf8.h"

namespace zarn_3_3::internal {
namespace {

constexpr const char* replacementCharacter = "\xEF\xBF\xBD";

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

void JsonWriter::open(char bracket, std::string_view key) {
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

void JsonWriter::text(std::string_view key, std::string_view value) {
    if (!value.empty()) {
        beginEntry(key);
        quote(value);
    }
}

void JsonWriter::number(std::string_view key, long long value) {
    if (value != 0) {
        beginEntry(key);
        text_.append(std::to_string(value));
    }
}

void JsonWriter::flag(std::string_view key, bool value) {
    if (value) {
        beginEntry(key);
        text_.append("true");
    }
}

void JsonWriter::element(std::string_view value) {
    beginEntry({});
    quote(value);
}

void JsonWriter::beginEntry(std::string_view key) {
    if (!levels_.back().isEmpty) {
        text_ += ',';
    }
    levels_.back().isEmpty = false;
    beginLine();
    if (!key.empty()) {
        quote(key);
        text_.append(": ");
    }
}

void JsonWriter::beginLine() {
    text_ += '\n';
    text_.append(2 * levels_.size(), ' ');
}

void JsonWriter::quote(std::string_view value) {
    text_ += '"';
    while (!value.empty()) {
        const std::size_t length = characterLength(value);
        if (length == 1) {
            escape(value.front());
        } else if (length == 0) {
            text_.append(replacementCharacter);
        } else {
            text_.append(value.substr(0, length));
        }
        value.remove_prefix(length == 0 ? 1 : length);
    }
    text_ += '"';
}

void JsonWriter::escape(char c) {
    constexpr char digits[] = "0123456789abcdef";
    if (const char letter = shortEscape(c)) {
        text_ += '\\';
        text_ += letter;
    } else if (static_cast<unsigned char>(c) < ' ') {
        text_.append("\\u00");
        text_ += digits[c / 16];
        text_ += digits[c % 16];
    } else {
        text_ += c;
    }
}

}  // namespace zarn_3_3::internal
