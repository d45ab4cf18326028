// zarn-vocabulary: compares and documents what tools take, as their descriptions say.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "diff_command.h"
#include "zarn/typed.h"

namespace vocabulary {
namespace {

enum ExitCode : int { exitUnusable = 3 };

using Commands = std::vector<Command*>;

void complain(const char* text) { std::fprintf(stderr, "zarn-vocabulary: %s\n", text); }

bool print(const std::string& text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
           std::fflush(stdout) == 0;
}

int perform(const Command& command, const std::vector<std::string>& arguments) {
    const Answer answer = command.perform(arguments);
    if (!print(answer.text)) {
        complain("the standard output cannot be written");
        return exitUnusable;
    }
    return answer.exitCode;
}

void declare(zarn::Parser& parser, const Commands& commands, std::vector<std::string>& arguments) {
    for (Command* const command : commands) {
        command->declare(parser);
        parser.check(
            [command, &arguments] {
                return !command->isWanted() || arguments.size() == command->argumentCount();
            },
            command->argumentRule());
    }
    parser.declare({zarn::positional("file", "Descriptions, as tools give them of themselves.")
                        .named("FILE")
                        .into(arguments)});
}

int run(const Commands& commands, int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    zarn::Parser parser(
        {"zarn-vocabulary", PROGRAM_VERSION, "Compares and documents what tools take."});
    declare(parser, commands, arguments);
    if (const auto ended = parser.run(argc, argv)) {
        return *ended;
    }
    for (const Command* const command : commands) {
        if (command->isWanted()) {
            return perform(*command, arguments);
        }
    }
    complain("No action defined.");
    return zarn::exitUsage;
}

}  // namespace
}  // namespace vocabulary

int main(int argc, char** argv) {
    try {
        vocabulary::DiffCommand diff;
        return vocabulary::run({&diff}, argc, argv);
    } catch (const std::exception& error) {
        vocabulary::complain(error.what());
        return vocabulary::exitUnusable;
    }
}
