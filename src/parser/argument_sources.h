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
    bool next(std::string& argument) override;
    void copyRest() override;

    const char* const* at_ = nullptr;
    const char* const* end_ = nullptr;
    TextArena texts_;  // of the copy
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
    bool next(std::string& argument) override;
    void copyRest() override {}

    std::vector<std::string>& all_;
    std::size_t read_ = 0;  // from its front; those in the window are not taken yet
};

// The arguments of a text.
class TextArguments final : public Arguments {
public:
    enum class Owner { client, library };

    // A text of the library's own must outlive this object.
    TextArguments(std::string_view read, Owner owner);

private:
    bool next(std::string& argument) override;
    void copyRest() override;

    std::string_view rest_;
    std::vector<std::string_view> lines_;  // those that were cut off last
    std::size_t position_ = 0;             // among them
    Owner owner_;
    std::string copy_;
};

// Cuts arguments off the front of `text`, one a line, and appends them to `args`, until those are
// `count` or none is left; empty lines and comments (';', '#') are dropped. They point into `text`.
// Throws std::bad_alloc.
void parseStreamToArgs(std::string_view& text,
                       std::vector<std::string_view>& args,
                       std::size_t count);

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ARGUMENT_SOURCES_H
