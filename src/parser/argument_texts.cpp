#include "parser/argument_texts.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <stdexcept>

#include "options/text_arena.h"
#include "recognizers/token_helpers.h"

namespace zarn_3_3::internal {
namespace {

// What a line says: without the white space in front and the carriage returns at the end. The
// classic locale tells what white space is, since a file shall not mean one thing to one user and
// another to the next; inside an argument it is the locale's.
std::string_view argumentOf(std::string_view line) {
    const auto* const start = std::find_if_not(line.begin(), line.end(), isClassicSpace);
    line.remove_prefix(static_cast<std::size_t>(start - line.begin()));
    if (line.empty() || line.front() == ';' || line.front() == '#') {
        return {};
    }
    return line.substr(0, line.find_last_not_of('\r') + 1);
}

// Moves the texts to `to`, terminators and all.
void moveTo(char* to, std::vector<std::string_view>& texts) {
    for (std::string_view& text : texts) {
        std::memcpy(to, text.data(), text.size() + 1);
        text = {to, text.size()};
        to += text.size() + 1;
    }
}

}  // namespace

std::vector<std::string_view> copiedArguments(int argc,
                                              const char* const* argv,
                                              TextArena& keeper) {
    if (argv == nullptr) {
        throw std::invalid_argument("The argument vector is null");
    }
    const char* const* const first = argv + 1;
    const char* const* const end = std::find(first, argv + argc, nullptr);
    std::vector<std::string_view> texts(first, end);
    std::size_t size = 0;
    for (const std::string_view text : texts) {
        size += text.size() + 1;
    }
    moveTo(keeper.take(size), texts);
    return texts;
}

void parseStreamToArgs(std::string_view text, std::vector<std::string_view>& args) {
    if (text == "-1") {
        text = "?";  // kept: so it was always read
    }
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const std::string_view argument = argumentOf(line);
        if (!argument.empty()) {
            args.push_back(argument);
        }
    }
}

}  // namespace zarn_3_3::internal
