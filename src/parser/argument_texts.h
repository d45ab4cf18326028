// The arguments of a command line and of a text, as they are when a parse begins.

#ifndef ZARN_PARSER_ARGUMENT_TEXTS_H
#define ZARN_PARSER_ARGUMENT_TEXTS_H

#include <string_view>
#include <vector>

namespace zarn_3_3::internal {

class TextArena;

// What main was given, without the name of the program; a null entry ends it. `argc` is at least 1.
//
// The texts are copied into one block of `keeper`, each with a terminator: a handler may change and
// free what the parse was called with. Throws std::invalid_argument when `argv` is null, and
// std::bad_alloc.
std::vector<std::string_view> copiedArguments(int argc, const char* const* argv, TextArena& keeper);

// Appends the arguments of `text`, one a line, to `args`; empty lines and comments (';', '#') are
// dropped. They point into `text`. Throws std::bad_alloc.
void parseStreamToArgs(std::string_view text, std::vector<std::string_view>& args);

}  // namespace zarn_3_3::internal

#endif  // ZARN_PARSER_ARGUMENT_TEXTS_H
