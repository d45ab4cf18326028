#include "parser/argument_sources.h"

#include <algorithm>
#include <stdexcept>

#include "recognizers/token_helpers.h"

namespace zarn_3_3::internal {
namespace {

// What a line says: without the white space in front and the carriage returns at the end.
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

bool VectorSource::next(std::string& argument) {
    if (position == arguments.size()) {
        return false;
    }
    argument = arguments[position];
    ++position;
    return true;
}

// Kept: "-1" reads as "?".
TextSource::TextSource(std::string_view text) : rest(text == "-1" ? "?" : text) {}

bool TextSource::next(std::string& argument) {
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const std::string_view found = argumentOf(line);
        if (!found.empty()) {
            argument = found;
            return true;
        }
    }
    return false;
}

}  // namespace zarn_3_3::internal
