// "-script=SHELL TOOL": completion for a tool that was not built with CMake.

#ifndef ZARN_VOCABULARY_SCRIPT_COMMAND_H
#define ZARN_VOCABULARY_SCRIPT_COMMAND_H

#include <optional>
#include <string>
#include <vector>

#include "command.h"

namespace vocabulary {

enum class Shell { bash, fish, zsh };

class ScriptCommand final : public Command {
public:
    void declare(zarn::Parser& parser) override;
    bool isWanted() const override { return shell_.has_value(); }
    std::size_t argumentCount() const override { return 1; }
    const char* argumentRule() const override { return "'--script' takes the name of a tool"; }

    // A name that shells would read as something else is refused, and so is a path: scripts belong
    // to the name that users type.
    Answer perform(const std::vector<std::string>& arguments) const override;

private:
    std::optional<Shell> shell_;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_SCRIPT_COMMAND_H
