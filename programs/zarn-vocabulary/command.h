// One thing that the program does.

#ifndef ZARN_VOCABULARY_COMMAND_H
#define ZARN_VOCABULARY_COMMAND_H

#include <cstddef>
#include <string>
#include <vector>

#include "zarn/typed.h"

namespace vocabulary {

// What a command has to say, and the exit code of the program.
struct Answer {
    std::string text;
    int exitCode = 0;
};

class Command {
public:
    virtual ~Command() = default;

    // Declares the action that asks for the command, and the modifiers that belong to it.
    virtual void declare(zarn::Parser& parser) = 0;

    // Whether the command line has asked for it.
    virtual bool isWanted() const = 0;

    // How many arguments the command takes beside its options, and the words that say so.
    virtual std::size_t argumentCount() const = 0;
    virtual const char* argumentRule() const = 0;

    // Throws std::runtime_error, such as UnreadableDescription, for input that is of no use.
    virtual Answer perform(const std::vector<std::string>& arguments) const = 0;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_COMMAND_H
