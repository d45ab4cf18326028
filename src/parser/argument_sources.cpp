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

CommandLineArguments::CommandLineArguments(int argc, const char* const* argv) {
    if (argv == nullptr) {
        throw std::invalid_argument("The argument vector is null");
    }
    // The name of the program is no argument.
    begin_ = argv + 1;
    at_ = begin_;
    end_ = argv + argc;
}

bool CommandLineArguments::peek(std::string_view& argument) {
    if (at_ == end_ || *at_ == nullptr) {
        return false;
    }
    argument = *at_;
    return true;
}

void CommandLineArguments::copyRest() {
    beforeCopy_ = static_cast<std::size_t>(at_ - begin_);
    // The pointers too: a handler may write into the vector itself.
    for (; at_ != end_ && *at_ != nullptr; ++at_) {
        copies_.push_back(texts_.keep(*at_));
    }
    begin_ = copies_.data();
    at_ = begin_;
    end_ = at_ + copies_.size();
}

Place CommandLineArguments::placeOf(std::size_t age) const {
    const std::size_t given = beforeCopy_ + static_cast<std::size_t>(at_ - begin_);
    return {static_cast<int>(given - age) + 1, 0, {}};
}

VectorArguments::~VectorArguments() {
    // What was looked at, and not taken, stays.
    const std::size_t taken = read_ - window().size();
    all_.erase(all_.begin(), all_.begin() + static_cast<std::ptrdiff_t>(taken));
}

bool VectorArguments::peek(std::string_view& argument) {
    if (read_ == all_.size()) {
        return false;
    }
    argument = all_[read_];
    return true;
}

// As though the name of the program stood in front of the vector.
Place VectorArguments::placeOf(std::size_t age) const {
    return {static_cast<int>(read_ - age) + 1, 0, {}};
}

// Kept: "-1" reads as "?".
TextArguments::TextArguments(std::string_view text, Owner owner, std::string_view file)
    : rest_{text == "-1" ? "?" : text, 1}, owner_(owner), file_(file) {}

bool TextArguments::peek(std::string_view& argument) {
    if (position_ == lines_.size()) {
        lines_.clear();
        position_ = 0;
        // A few at a time: a large file is not cut in full before its first line is parsed.
        parseStreamToArgs(rest_, lines_, 16);
        if (lines_.empty()) {
            return false;
        }
    }
    argument = lines_[position_].argument;
    return true;
}

void TextArguments::skip() {
    lineBefore_ = lastLine_;
    lastLine_ = lines_[position_].line;
    ++position_;
}

// From the first argument that was not given out yet. A text of the library's own is safe as it is.
void TextArguments::copyRest() {
    if (owner_ == Owner::library) {
        return;
    }
    const char* start = rest_.text.data();
    if (position_ != lines_.size()) {
        start = lines_[position_].argument.data();
        rest_.line = lines_[position_].line;
    }
    copy_.assign(start, rest_.text.data() + rest_.text.size());
    rest_.text = copy_;
    lines_.clear();
    position_ = 0;
}

Place TextArguments::placeOf(std::size_t age) const {
    return {0, age == 1 ? lastLine_ : lineBefore_, file_};
}

void parseStreamToArgs(TextRest& rest, std::vector<TextLine>& args, std::size_t count) {
    for (; !rest.text.empty() && args.size() < count; ++rest.line) {
        const std::string_view line = rest.text.substr(0, rest.text.find('\n'));
        rest.text.remove_prefix(std::min(line.size() + 1, rest.text.size()));
        const std::string_view argument = argumentOf(line);
        if (!argument.empty()) {
            args.push_back({argument, rest.line});
        }
    }
}

}  // namespace zarn_3_3::internal
