// The places that arguments come from: a command line, a vector, a text.

#ifndef ZARN_PARSER_ARGUMENT_SOURCES_H
#define ZARN_PARSER_ARGUMENT_SOURCES_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "recognizers/argument_source.h"

namespace zarn_3_3::internal {

// What main was given, without the name of the program. A null entry ends it.
class CommandLineSource final : public ArgumentSource {
public:
    // `argc` is at least 1. Throws std::invalid_argument when `argv` is null.
    CommandLineSource(int argc, const char* const* argv);

    bool next(std::string& argument) override;

private:
    const char* const* at = nullptr;
    const char* const* end = nullptr;
};

// A vector, which is read and left as it is.
class VectorSource final : public ArgumentSource {
public:
    explicit VectorSource(const std::vector<std::string>& read) : arguments(read) {}

    bool next(std::string& argument) override;

    // How many arguments were read.
    std::size_t taken() const { return position; }

private:
    const std::vector<std::string>& arguments;
    std::size_t position = 0;
};

// The lines of a text, one argument a line; empty lines and comments (';', '#') are dropped.
class TextSource final : public ArgumentSource {
public:
    // `text` must outlive the source.
    explicit TextSource(std::string_view text);

    bool next(std::string& argument) override;

private:
    std::string_view rest;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ARGUMENT_SOURCES_H
