#include <algorithm>
#include <iostream>
#include <string>

#include "actions.h"
#include "vocabulary.h"

namespace checksums {
namespace {

using zarn::IParser;

constexpr bool notHidden = false;
constexpr bool hiddenOnly = true;

constexpr const char* usage =
    "Usage: checksums -create [option ...] [--] file or folder ...\n"
    "       checksums -verify [option ...]\n"
    "       checksums -create -verify [option ...] [--] file or folder ...\n"
    "       checksums -compare [option ...] [--] old-manifest new-manifest\n"
    "       checksums -help [topic ...]\n"
    "\n"
    "Options stand before the first file; they may be abbreviated and have two dashes.\n";

struct CodeMeaning {
    ExitCode code;
    const char* meaning;
};

constexpr CodeMeaning codeMeanings[] = {
    {exitOk,          "Everything is as it should be."                                    },
    {exitDifferences,
     "There are differences: a file is changed or missing, or two manifests are "
     "not alike."                                                                         },
    {exitUsage,       "The command line is wrong; nothing was done."                      },
    {exitFile,        "A file is not there, cannot be read or written, or is no manifest."},
    {exitInternal,    "The tool itself failed, for lack of memory perhaps."               },
};

void printExitCodes() {
    constexpr std::size_t indent = 8;
    constexpr std::size_t width = 80;
    std::cout << "Exit codes:\n";
    for (const auto& [code, meaning] : codeMeanings) {
        const std::string head = "    " + std::to_string(code);
        std::cout << zarn::WordWrappedText(head.c_str(), meaning, indent, width).getText();
    }
}

void printModifiers(IParser& parser, const char* action) {
    const std::string text = parser.getActionModifiersDescription(action, notHidden);
    if (!text.empty()) {
        std::cout << "Options of -" << action << ":\n" << text;
    }
}

void printEverything(IParser& parser) {
    std::cout << usage << "\nActions:\n" << parser.getDescription(notHidden) << '\n';
    for (const char* action : {names::create, names::verify, names::compare}) {
        printModifiers(parser, action);
    }
    std::cout << "Options of every action:\n" << parser.getGlobalModifiersDescription(notHidden);
    printExitCodes();
}

ExitCode printTopic(IParser& parser, const std::string& argument) {
    const std::size_t dashes = argument.find_first_not_of('-');
    const std::string topic = dashes == std::string::npos ? argument : argument.substr(dashes);
    // Positional options are in no list.
    if (topic == names::files) {
        std::cout << usage;
        return exitOk;
    }
    const bool isAction = parser.isOptionDeclared(topic.c_str(), true, nullptr);
    if (!isAction && !parser.isOptionDeclared(topic.c_str(), false, nullptr)) {
        std::cerr << parser.getDescription(topic.c_str(), notHidden);
        return exitUsage;
    }
    std::cout << parser.getDescription(topic.c_str(), notHidden);
    if (isAction) {
        printModifiers(parser, topic.c_str());
    }
    return exitOk;
}

}  // namespace

ExitCode showHelp(const Command& command, IParser& parser) {
    if (command.hidden) {
        std::cout << parser.getDescription(hiddenOnly);
        return exitOk;
    }
    if (command.names.empty()) {
        printEverything(parser);
        return exitOk;
    }
    ExitCode code = exitOk;
    for (const std::string& topic : command.names) {
        code = std::max(code, printTopic(parser, topic));
    }
    return code;
}

}  // namespace checksums
