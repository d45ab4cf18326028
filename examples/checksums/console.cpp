#include "console.h"

#include <unistd.h>

#include <iostream>

#include "name_escape.h"

namespace checksums {
namespace {

constexpr const char* plain = "\033[0m";

const char* colorOf(Mark mark) {
    switch (mark) {
        case Mark::good:
            return "\033[32m";
        case Mark::bad:
            return "\033[31m";
        case Mark::notice:
            return "\033[33m";
    }
    return plain;
}

std::string withoutControls(const std::string& text) {
    constexpr const char* digits = "0123456789abcdef";
    std::string shown;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= 0x20 && code != 0x7f) {
            shown += byte;
        } else {
            shown += {'\\', 'x', digits[code / 16], digits[code % 16]};
        }
    }
    return shown;
}

}  // namespace

void printError(const std::string& message) {
    std::cout.flush();
    std::cerr << "checksums: " << withoutControls(message) << std::endl;
}

Results::Results(std::optional<bool> color, bool quiet)
    : hasColor(color.value_or(isatty(STDOUT_FILENO) == 1)), isQuiet(quiet) {}

void Results::print(const std::string& name, const char* verdict, Mark mark) const {
    if (isQuiet && mark == Mark::good) {
        return;
    }
    std::cout << (needsEscape(name) ? "\\" : "") << escapeName(name) << ": "
              << (hasColor ? colorOf(mark) : "") << verdict << (hasColor ? plain : "") << '\n';
}

void Results::printSummary(const std::string& summary) const {
    if (!isQuiet) {
        std::cout << summary << '\n';
    }
}

}  // namespace checksums
