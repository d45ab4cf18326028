// Option files, read while memory runs out.

#include <fstream>

#include "world.h"

namespace zarn_3_3::faults {
namespace {

struct File {
    const char* name;
    const char* lines;  // '@' stands for "--option-file=<folder>/"
};

const File files[] = {
    {"empty",     ""                                                                      },
    {"arguments", "# a comment\n--jobs-that-run-at-once=1\n--\na-plain-argument-in-a-file"},
    {"nested",    "--jobs-that-run-at-once=2\n@arguments\n@empty\n@arguments"             },
    {"cycle",     "--jobs-that-run-at-once=3\n@second"                                    },
    {"second",    "@cycle"                                                                },
    {"wrong",     "--jobs-that-run-at-once=4\n--an-option-that-is-nowhere"                },
    {"open end",  "--name-of-the-tool-in-full"                                            },
};

const char* const severalFiles = "-b\n@nested\n@arguments\n--\na-plain-argument";

struct Line {
    const char* name;
    const char* lines;
    int code;
    const char* error;  // a part of it
};

constexpr int unreadable = resultOptionFileUnreadable;

const Line lines[] = {
    {"empty",          "-b\n@empty",     resultOk,         ""                         },
    {"arguments",      "-b\n@arguments", resultOk,         ""                         },
    {"several",        severalFiles,     resultOk,         ""                         },
    {"cycle",          "-b\n@cycle",     unreadable,       "each other in a cycle"    },
    {"missing",        "-b\n@missing",   unreadable,       "Error reading option file"},
    {"wrong argument", "-b\n@wrong",     resultRuleBroken, "Unknown option: --an-opt" },
    {"value missing",  "-b\n@open end",  resultRuleBroken, "requires a value in arg"  },
};

std::string inFolder(std::string text, const std::string& folder) {
    const std::string option = "--option-file=" + folder + "/";
    for (std::size_t at = text.find('@'); at != text.npos; at = text.find('@', at)) {
        text.replace(at, 1, option);
    }
    return text;
}

}  // namespace

Scenarios optionFileScenarios(const std::string& folder) {
    for (const File& file : files) {
        std::ofstream(folder + "/" + file.name) << inFolder(file.lines, folder);
    }
    Scenarios all;
    for (const Line& row : lines) {
        Scenario scenario;
        scenario.name = std::string("option file: ") + row.name;
        scenario.lack = Lack::code;
        scenario.prepare = [](World& world) { world.tool->addOptionFileOption("A file", "g"); };
        scenario.run = [text = inFolder(row.lines, folder)](World& world) {
            return parseLines(world, text.c_str());
        };
        scenario.code = row.code;
        scenario.textPart = row.error;
        all.push_back(scenario);
    }
    return all;
}

}  // namespace zarn_3_3::faults
