// "-diff OLD NEW": what a release does to the users of a tool.

#ifndef ZARN_VOCABULARY_DIFF_COMMAND_H
#define ZARN_VOCABULARY_DIFF_COMMAND_H

#include <string>
#include <vector>

#include "command.h"

namespace vocabulary {

class DiffCommand final : public Command {
public:
    void declare(zarn::Parser& parser) override;
    bool isWanted() const override { return isWanted_; }
    std::size_t argumentCount() const override { return 2; }
    const char* argumentRule() const override {
        return "'--diff' takes two descriptions, the old one and the new one";
    }

    // The exit code is 1 when the new tool breaks something.
    Answer perform(const std::vector<std::string>& arguments) const override;

private:
    bool isWanted_ = false;
    std::vector<std::string> ignored_;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_DIFF_COMMAND_H
