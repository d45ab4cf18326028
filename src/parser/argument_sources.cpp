#include "parser/argument_sources.h"

#include <algorithm>
#include <stdexcept>

#include "text/text_locale.h"

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

}  // namespace

CommandLineSource::CommandLineSource(int argc, const char* const* argv) {
    if (argv == nullptr) {
        throw std::invalid_argument("The argument vector is null");
    }
    at = argv + 1;
    end = argv + argc;
}

bool CommandLineSource::next(std::string& argument) {
    if (at == end || *at == nullptr) {
        return false;
    }
    argument = *at;
    ++at;
    return true;
}

void CommandLineSource::copyRest() {
    for (; at != end && *at != nullptr; ++at) {
        copies.push_back(texts.keep(*at));
    }
    at = copies.data();
    end = at + copies.size();
}

bool VectorSource::next(std::string& argument) {
    if (position == arguments.size()) {
        return false;
    }
    argument = arguments[position];
    ++position;
    return true;
}

// Kept: "-1" reads as "?".
TextSource::TextSource(std::string_view read, Owner ofRead)
    : rest(read == "-1" ? "?" : read), owner(ofRead) {}

bool TextSource::next(std::string& argument) {
    if (position == arguments.size()) {
        arguments.clear();
        position = 0;
        parseStreamToArgs(rest, arguments, 16);
        if (arguments.empty()) {
            return false;
        }
    }
    argument = arguments[position];
    ++position;
    return true;
}

// From the first argument that was not given out yet.
void TextSource::copyRest() {
    if (owner == Owner::library) {
        return;
    }
    const char* const start =
        position == arguments.size() ? rest.data() : arguments[position].data();
    copy.assign(start, rest.data() + rest.size());
    rest = copy;
    arguments.clear();
    position = 0;
}

void parseStreamToArgs(std::string_view& text,
                       std::vector<std::string_view>& args,
                       std::size_t count) {
    while (!text.empty() && args.size() < count) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const std::string_view argument = argumentOf(line);
        if (!argument.empty()) {
            args.push_back(argument);
        }
    }
}

}  // namespace zarn_3_3::internal
