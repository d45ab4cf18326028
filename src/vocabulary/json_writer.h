// JSON for readers who compare it: two blanks a level, one entry a line, UTF-8.

#ifndef ZARN_VOCABULARY_JSON_WRITER_H
#define ZARN_VOCABULARY_JSON_WRITER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zarn_3_3::internal {

// What is written in an object is left out when it is empty: a text, the number 0, false, and an
// object or a list in which nothing has been written. An object in a list is left out then too.
class JsonWriter {
public:
    // The bracket with which an object or a list begins; no key where it stands in a list, or is
    // the whole.
    void open(char bracket, const char* key = nullptr);
    void close();

    void text(const char* key, std::string_view value);
    void number(const char* key, long long value);
    void flag(const char* key, bool value);

    // In a list, also when it is empty.
    void element(std::string_view value);

    // Takes everything out, when all that was opened is closed.
    std::string take() { return std::move(text_); }

private:
    struct Level {
        char end;
        bool isEmpty;
        std::size_t start;     // of its entry in the text
        bool wasOutsideEmpty;  // what holds it, before
    };

    void beginEntry(const char* key);
    void beginLine();
    void quote(std::string_view value);
    std::size_t writeSpecial(std::string_view value);
    void escape(char c);

    std::string text_;
    std::vector<Level> levels_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_VOCABULARY_JSON_WRITER_H
