#include "support/observer.h"

#include <iostream>
#include <sstream>

namespace zarn_3_3::testing_support {
namespace {

std::string escapedByte(char c) {
    const char* const digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
        case '\n':
            return "\\n";
        case '\t':
            return "\\t";
        case '\r':
            return "\\r";
        case '\\':
            return "\\\\";
        default:
            return byte >= ' ' && byte < 0x7F
                       ? std::string(1, c)
                       : std::string("\\x") + digits[byte / 16] + digits[byte % 16];
    }
}

}  // namespace

CapturedLines::int_type CapturedLines::overflow(int_type character) {
    const Crossing outward(border, false);
    const char c = traits_type::to_char_type(character);
    if (c == '\n') {
        take(std::exchange(line, {}));
    } else {
        line += c;
    }
    return traits_type::not_eof(character);
}

void CapturedLines::finish() {
    if (!line.empty()) {
        take(std::exchange(line, {}) + " (without a line feed)");
    }
}

Observer::Observer(const Border& border, Console console) {
    if (console == Console::observed) {
        const auto takeLog = [this](const std::string& text) { say(Kind::log, "log: " + text); };
        log.emplace(std::cout, border, takeLog);
        warnings.emplace(
            std::cerr, border, [this](const std::string& text) { say(Kind::warning, text); });
    }
}

// Events in a row stand in one line.
void Observer::say(Kind kind, const std::string& text) {
    const bool goesOn = kind == Kind::event && !answers.empty() && answers.back().kind == kind &&
                        answers.back().line == line;
    if (goesOn) {
        answers.back().text += "; " + escaped(text);
    } else {
        answers.push_back({line, kind, escaped(text)});
    }
}

void Observer::sayLines(const std::string& text) {
    std::istringstream lines(text);
    for (std::string one; std::getline(lines, one);) {
        say(Kind::outcome, one + (lines.eof() ? " (without a line feed)" : ""));
    }
    if (text.empty()) {
        say(Kind::outcome, "(nothing)");
    }
}

void Observer::finishLines() {
    if (log) {
        log->finish();
        warnings->finish();
    }
}

std::string escaped(const std::string& text) {
    std::string readable;
    for (const char c : text) {
        readable += escapedByte(c);
    }
    if (!text.empty() && text.back() == ' ') {
        readable.replace(readable.size() - 1, 1, "\\x20");
    }
    return readable;
}

}  // namespace zarn_3_3::testing_support
