#include "support/observer.h"

#include <iostream>
#include <sstream>

#include "support/failing_new.h"
#include "support/restored.h"

namespace zarn_3_3::testing_support {
namespace {

std::string escapedByte(char c) {
    const std::string special = "\n\t\r\\";
    const std::size_t found = special.find(c);
    if (found != std::string::npos) {
        return std::string("\\") + "ntr\\"[found];
    }
    const char* const digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return byte >= ' ' && byte < 0x7F ? std::string(1, c)
                                      : std::string("\\x") + digits[byte / 16] + digits[byte % 16];
}

}  // namespace

Observer::Observer(Console console) {
    if (console == Console::observed) {
        log.emplace(*this, Kind::log, std::cout);
        warnings.emplace(*this, Kind::warning, std::cerr);
    }
}

Observer::Tap::Tap(Observer& byWhom, Kind ofWhat, std::ostream& tapped)
    : observer(byWhom), kind(ofWhat), stream(tapped), before(tapped.rdbuf(this)) {
    stream.exceptions(std::ios::badbit | std::ios::failbit);
}

Observer::Tap::~Tap() {
    stream.exceptions(std::ios::goodbit);
    stream.rdbuf(before);
}

Observer::Tap::int_type Observer::Tap::overflow(int_type character) {
    observer.hear(kind, traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

void Observer::hear(Kind kind, char c) {
    const Restored spared(memory.isSpared, true);
    if (c != '\n') {
        begun[kind] += c;
        return;
    }
    const std::string text = std::exchange(begun[kind], {});
    say(kind, (kind == Kind::log ? "log: " : "") + text);
    react((kind == Kind::log ? "log " : "warning ") + text);
}

void Observer::finishStep() {
    if (log.has_value()) {
        std::cout.clear();
        std::cerr.clear();
    }
    for (auto& [kind, text] : begun) {
        if (!text.empty()) {
            text += " (without a line feed)";
            hear(kind, '\n');
        }
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
