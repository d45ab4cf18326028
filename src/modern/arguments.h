// The arguments in front of a parse, and what is wrong with them that the parse would let pass.

#ifndef ZARN_MODERN_ARGUMENTS_H
#define ZARN_MODERN_ARGUMENTS_H

#include <string>
#include <string_view>
#include <vector>

#include "modern/vocabulary.h"
#include "recognizers/argument_reading.h"

namespace zarn_3_3::internal {

// A command line as main has it.
struct CommandLine {
    int argc;
    const char* const* argv;
};

// An argument cut as the parse cuts it. `isOption` is false for what has no dash in front.
struct CutArgument : CutOption {
    bool isOption = false;
};

CutArgument cutArgument(const std::string& argument);
CutArgument cutArgument(std::string&&) = delete;  // the views would dangle

bool isAtArgument(CommandLine line, int index);

// Whether several letters stand behind one dash.
bool isBundle(std::string_view argument);

// Whether the argument begins with any of the dashes.
bool hasDash(const std::string& argument);

// Goes through the arguments that may be options: up to the terminator "--", or to the first that a
// positional item takes with all the rest.
class OptionWalk {
public:
    OptionWalk(const Vocabulary& vocabulary, CommandLine line);

    bool isAtEnd() const;
    int index() const { return index_; }
    std::string argument() const { return line_.argv[index_]; }

    // The item of which the argument is the value, as far as it may be one; or null.
    const ItemRecord* waiting() const { return waiting_; }

    // `parsed`: the argument, or what has been made of it.
    void next(const std::string& parsed);

private:
    const Vocabulary& vocabulary_;
    CommandLine line_;
    int index_ = 1;
    const ItemRecord* waiting_ = nullptr;
};

// These two note the failure.

// What is wrong with the first empty argument that would vanish, or would have the next argument
// taken for a value. Empty when there is none.
std::string wrongEmptyArgument(Vocabulary& vocabulary, CommandLine line);

// What is wrong with the first argument that names one of several positional items: whose value is
// whose could not be told any more. Empty when there is none.
std::string wrongNamedArgument(Vocabulary& vocabulary, CommandLine line);

// What is wrong with the first argument that has one dash in front of a long name, where that is
// no habit. Empty when there is none.
std::string wrongLongName(Vocabulary& vocabulary, CommandLine line);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_ARGUMENTS_H
