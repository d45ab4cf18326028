// zarn-vocabulary: compares and documents what tools take, as their descriptions say.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "diff_command.h"
#include "document_commands.h"
#include "output.h"
#include "script_command.h"
#include "zarn/typed.h"

namespace vocabulary {
namespace {

enum ExitCode : int { exitUnusable = 3 };

using Commands = std::vector<Command*>;

void complain(const char* text) { std::fprintf(stderr, "zarn-vocabulary: %s\n", text); }

int perform(const Command& command,
            const std::vector<std::string>& arguments,
            const std::string& output) {
    const Answer answer = command.perform(arguments);
    if (output.empty()) {
        writeToStandardOutput(answer.text);
    } else {
        writeToFile(output, answer.text);
    }
    return answer.exitCode;
}

// `arguments` and `output` are what is given beside the options of the commands.
void declare(zarn::Parser& parser,
             const Commands& commands,
             std::vector<std::string>& arguments,
             std::string& output) {
    for (Command* const command : commands) {
        command->declare(parser);
        parser.check(
            [command, &arguments] {
                return !command->isWanted() || arguments.size() == command->argumentCount();
            },
            command->argumentRule());
    }
    parser.declare({
        zarn::option<std::string>("output", "Where to write, in place of the standard output.")
            .named("FILE")
            .into(output),
        zarn::positional("file", "Descriptions of tools; with --script the name of one.")
            .named("FILE")
            .into(arguments),
    });
}

int run(const Commands& commands, int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    std::string output;
    zarn::Parser parser(
        {"zarn-vocabulary", PROGRAM_VERSION, "Compares and documents what tools take."});
    declare(parser, commands, arguments, output);
    if (const auto ended = parser.run(argc, argv)) {
        return *ended;
    }
    for (const Command* const command : commands) {
        if (command->isWanted()) {
            return perform(*command, arguments, output);
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
        vocabulary::ManCommand man;
        vocabulary::MarkdownCommand markdown;
        vocabulary::ScriptCommand script;
        return vocabulary::run({&diff, &man, &markdown, &script}, argc, argv);
    } catch (const std::exception& error) {
        vocabulary::complain(error.what());
        return vocabulary::exitUnusable;
    }
}
