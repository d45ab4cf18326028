// The places that arguments come from: a command line, a vector, a text.

#ifndef ZARN_PARSER_ARGUMENT_SOURCES_H
#define ZARN_PARSER_ARGUMENT_SOURCES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "recognizers/arguments.h"
#include "text/text_arena.h"

namespace zarn_3_3::internal {

// What main was given, without the name of the program. A null entry ends it.
class CommandLineArguments final : public Arguments {
public:
    // `argc` is at least 1. Throws std::invalid_argument when `argv` is null.
    CommandLineArguments(int argc, const char* const* argv);

private:
    bool peek(std::string_view& argument) override;
    void skip() override { ++at_; }
    void copyRest() override;
    Place placeOf(std::size_t age) const override;

    const char* const* begin_ = nullptr;
    const char* const* at_ = nullptr;
    const char* const* end_ = nullptr;
    std::size_t beforeCopy_ = 0;  // were given out when the copy was made
    TextArena texts_;             // of the copy
    std::vector<const char*> copies_;
};

// A vector, from the front of which is removed what was taken, however the taking ends. Client code
// has no hold on it.
class VectorArguments final : public Arguments {
public:
    explicit VectorArguments(std::vector<std::string>& all) : all_(all) {}
    VectorArguments(const VectorArguments&) = delete;
    VectorArguments& operator=(const VectorArguments&) = delete;
    ~VectorArguments();

private:
    bool peek(std::string_view& argument) override;
    void skip() override { ++read_; }
    void copyRest() override {}
    Place placeOf(std::size_t age) const override;

    std::vector<std::string>& all_;
    std::size_t read_ = 0;  // from its front; those in the window are not taken yet
};

// What is left of a text.
struct TextRest {
    std::string_view text;
    std::size_t line;  // the number of its first one
};

// An argument of a text.
struct TextLine {
    std::string_view argument;  // points into the text
    std::size_t line;
};

// Cuts arguments off the front of `rest`, one a line, and appends them to `args`, until those are
// `count` or none is left; empty lines and comments (';', '#') are dropped. Throws std::bad_alloc.
void parseStreamToArgs(TextRest& rest, std::vector<TextLine>& args, std::size_t count);

// The arguments of a text.
class TextArguments final : public Arguments {
public:
    enum class Owner { client, library };

    // A text of the library's own must outlive this object, and so must the name of its file.
    TextArguments(std::string_view read, Owner owner, std::string_view file = {});

private:
    bool peek(std::string_view& argument) override;
    void skip() override;
    void copyRest() override;
    Place placeOf(std::size_t age) const override;

    TextRest rest_;
    std::vector<TextLine> lines_;  // those that were cut off last
    std::size_t position_ = 0;     // among them
    std::size_t lastLine_ = 0;     // of the argument given out last,
    std::size_t lineBefore_ = 0;   // and of the one before
    Owner owner_;
    std::string_view file_;
    std::string copy_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ARGUMENT_SOURCES_H
