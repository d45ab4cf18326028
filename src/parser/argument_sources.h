// The places that arguments come from: a command line, a vector, a text.

#ifndef ZARN_PARSER_ARGUMENT_SOURCES_H
#define ZARN_PARSER_ARGUMENT_SOURCES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "recognizers/argument_source.h"
#include "text/text_arena.h"

namespace zarn_3_3::internal {

// What main was given, without the name of the program. A null entry ends it.
class CommandLineSource final : public ArgumentSource {
public:
    // `argc` is at least 1. Throws std::invalid_argument when `argv` is null.
    CommandLineSource(int argc, const char* const* argv);

private:
    bool next(std::string& argument) override;
    void copyRest() override;

    const char* const* at = nullptr;
    const char* const* end = nullptr;
    TextArena texts;  // of the copy
    std::vector<const char*> copies;
};

// A vector of the library's own, which is read and left as it is.
class VectorSource final : public ArgumentSource {
public:
    explicit VectorSource(const std::vector<std::string>& read) : arguments(read) {}

    // How many arguments were read.
    std::size_t taken() const { return position; }

private:
    bool next(std::string& argument) override;
    void copyRest() override {}

    const std::vector<std::string>& arguments;
    std::size_t position = 0;
};

// The arguments of a text.
class TextSource final : public ArgumentSource {
public:
    enum class Owner { client, library };

    // A text of the library's own must outlive the source.
    TextSource(std::string_view read, Owner owner);

private:
    bool next(std::string& argument) override;
    void copyRest() override;

    std::string_view rest;
    std::vector<std::string_view> arguments;  // those that were cut off last
    std::size_t position = 0;                 // among them
    Owner owner;
    std::string copy;
};

// Cuts arguments off the front of `text`, one a line, and appends them to `args`, until those are
// `count` or none is left; empty lines and comments (';', '#') are dropped. They point into `text`.
// Throws std::bad_alloc.
void parseStreamToArgs(std::string_view& text,
                       std::vector<std::string_view>& args,
                       std::size_t count);

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ARGUMENT_SOURCES_H
