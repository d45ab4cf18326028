#include "script_command.h"

#include <stdexcept>
#include <string_view>

#include "script_templates.h"

template <>
struct zarn::Names<vocabulary::Shell> {
    static constexpr zarn::Name<vocabulary::Shell> table[] = {
        {"bash", vocabulary::Shell::bash},
        {"fish", vocabulary::Shell::fish},
        {"zsh",  vocabulary::Shell::zsh },
    };
};

namespace vocabulary {
namespace {

constexpr std::string_view gap = "@tool@";

const char* templateFor(Shell shell) {
    switch (shell) {
        case Shell::bash:
            return bashTemplate;
        case Shell::fish:
            return fishTemplate;
        default:
            return zshTemplate;
    }
}

bool isName(std::string_view tool) {
    constexpr std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_.+-";
    return !tool.empty() && tool.front() != '-' &&
           tool.find_first_not_of(allowed) == std::string_view::npos;
}

}  // namespace

void ScriptCommand::declare(zarn::Parser& parser) {
    parser.declare({
        zarn::action<Shell>("script",
                            "Print what completes the words of a tool, given by its name.")
            .named("SHELL")
            .into(shell_),
    });
}

Answer ScriptCommand::perform(const std::vector<std::string>& arguments) const {
    const std::string& tool = arguments[0];
    if (!isName(tool)) {
        throw std::runtime_error("'" + tool +
                                 "' is no name of a tool: it has letters, digits, '_', '.', '+' and"
                                 " '-', which is not the first");
    }
    std::string script = templateFor(*shell_);
    for (std::size_t at = script.find(gap); at != std::string::npos; at = script.find(gap, at)) {
        script.replace(at, gap.size(), tool);
    }
    return {script};
}

}  // namespace vocabulary
