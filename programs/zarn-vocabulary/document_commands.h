// "-man DESCRIPTION" and "-markdown DESCRIPTION": pages about a tool.

#ifndef ZARN_VOCABULARY_DOCUMENT_COMMANDS_H
#define ZARN_VOCABULARY_DOCUMENT_COMMANDS_H

#include <string>
#include <vector>

#include "command.h"

namespace vocabulary {

class ManCommand final : public Command {
public:
    void declare(zarn::Parser& parser) override;
    bool isWanted() const override { return isWanted_; }
    std::size_t argumentCount() const override { return 1; }
    const char* argumentRule() const override { return "'--man' takes one description"; }
    Answer perform(const std::vector<std::string>& arguments) const override;

private:
    std::string dateFor(const std::string& path) const;

    bool isWanted_ = false;
    std::string date_;
};

class MarkdownCommand final : public Command {
public:
    void declare(zarn::Parser& parser) override;
    bool isWanted() const override { return isWanted_; }
    std::size_t argumentCount() const override { return 1; }
    const char* argumentRule() const override { return "'--markdown' takes one description"; }
    Answer perform(const std::vector<std::string>& arguments) const override;

private:
    bool isWanted_ = false;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_DOCUMENT_COMMANDS_H
