// Texts taken apart: numbers, cuts and paragraphs, each beside a plain way to do the same.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <optional>
#include <sstream>
#include <vector>

#include "bytes.h"
#include "parser/argument_sources.h"
#include "support/grouping_locale.h"
#include "text/cut_argument.h"
#include "text/number_text.h"
#include "text/paragraph.h"
#include "text/split.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;
using namespace zarn_3_3::internal;
using Texts = std::vector<std::string>;
using View = std::string_view;

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s\n", what);
        std::abort();
    }
}

// To the bit: 0 and -0 differ.
template <typename Number>
std::string bitsOf(const std::optional<Number>& number) {
    return number ? std::string(reinterpret_cast<const char*>(&*number), sizeof(Number)) : "none";
}

template <typename Number>
std::string extracted(View text, Trailing trailing, bool isHexadecimal = false) {
    std::istringstream stream{std::string(text)};
    Number number{};
    char more = 0;
    stream >> (isHexadecimal ? std::hex : std::dec) >> number;
    const bool isRead = !stream.fail() && (trailing == Trailing::ignored || !(stream >> more));
    return bitsOf(isRead ? std::optional(number) : std::nullopt);
}

template <typename Number>
void checkReading(View text) {
    for (const Trailing trailing : {Trailing::refused, Trailing::ignored}) {
        const std::string found =
            bitsOf(numberFromText<Number>(text, trailing, globalTextLocale()));
        require(found == extracted<Number>(text, trailing), "what a number is read as");
    }
}

template <typename Number>
void checkNumber(View text, Bytes bytes) {
    checkReading<Number>(text);
    const auto number = bytes.number<Number>();
    std::ostringstream stream;
    stream << number;
    require(textFromNumber(number) == stream.str(), "what a number is written as");
}

template <typename... Numbers>
void checkNumbers(View text, const Bytes& bytes) {
    (checkNumber<Numbers>(text, bytes), ...);
    checkReading<bool>(text);
    const std::string found = bitsOf(hexadecimalFromText(text, globalTextLocale()));
    require(found == extracted<unsigned long long>(text, Trailing::ignored, true), "hexadecimal");
}

std::size_t plainDashLength(View text) {
    for (const View dash : {"-", "\u2012", "\u2013", "\u2014", "\u2015", "\u2053"}) {
        if (text.substr(0, dash.size()) == dash) {
            return dash.size();
        }
    }
    return 0;
}

void checkArgument(const std::string& argument) {
    View rest = argument;
    rest.remove_prefix(plainDashLength(rest));
    rest.remove_prefix(plainDashLength(rest));
    const auto isSpace = [](char c) { return std::isspace(c, std::locale()); };
    std::size_t end = 0;
    while (end < rest.size() && rest[end] != '=' && !isSpace(rest[end])) {
        ++end;
    }
    const bool hasSign = end < rest.size() && rest[end] == '=';
    std::size_t start = hasSign ? end + 1 : end;
    while (!hasSign && start < rest.size() && isSpace(rest[start])) {
        ++start;
    }
    View name = "stale";
    View value;
    require(splitOptionValue(argument, &name, &value, globalTextLocale()) == (end < rest.size()),
            "a value");
    require(name == rest.substr(0, end) && value == rest.substr(start), "an argument that is cut");
}

Texts pieces(const std::string& text, char separator) {
    Texts all;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, separator);) {
        all.push_back(piece);
    }
    return all;
}

void checkCuts(const std::string& text, View exact) {
    checkArgument(text);
    Texts lines;
    for (std::string line : pieces(text, '\n')) {
        line.erase(0, line.find_first_not_of(" \t\v\f\r"));
        if (!line.empty() && line[0] != ';' && line[0] != '#') {
            lines.push_back(line.substr(0, line.find_last_not_of('\r') + 1));
        }
    }
    std::vector<View> found;
    View rest = exact;
    parseStreamToArgs(rest, found, exact.size());
    require(Texts(found.begin(), found.end()) == lines, "the arguments in the lines of a text");
    Texts cut;
    split(exact, cut);
    require(cut == pieces(text, ','), "the pieces between commas");
}

// Behind `line`, which takes at most `most` bytes, `rest` goes on.
void checkBreak(View line, View rest, std::size_t most) {
    require(line.size() <= most, "a line fits");
    if (rest.empty() || rest[0] == '\n') {
        return;
    }
    const std::size_t word = std::min(rest.size(), rest.find_first_not_of(' '));
    const std::size_t wordEnd = std::min(rest.size(), rest.find_first_of(" \n", word));
    require(line.size() + wordEnd > most, "a line is filled");
    require(line.size() == most || line.size() + word != most, "a full line keeps its blanks");
    const bool isCut = rest[0] != ' ' && !line.empty() && line.back() != ' ';
    const bool isAlone = line.size() == most && line.find(' ') == View::npos;
    require(!isCut || isAlone, "only a word alone in its line is cut");
}

void checkParagraph(View text, const std::string& head, std::size_t indent, std::size_t width) {
    const std::string paragraph = paragraphString(std::string(text), head, indent, width);
    View found = paragraph;
    const auto take = [&found](View expected) {
        require(found.substr(0, expected.size()) == expected, "a paragraph of head and column");
        found.remove_prefix(expected.size());
    };
    std::size_t length = head.size();
    const bool standsAlone = length >= indent && length >= indent + width - 2;
    take(text.empty() ? "" : head + (standsAlone ? "\n" : ""));
    for (length = standsAlone ? 0 : length; !text.empty(); length = 0) {
        text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \n")));
        const std::string padding(length < indent ? indent - length : 1, ' ');
        take(padding);
        const View line = found.substr(0, found.find('\n'));
        require(text.substr(0, line.size()) == line, "nothing is lost or made up");
        text.remove_prefix(line.size());
        checkBreak(line, text, indent + width - 1 - length - padding.size());
        take(std::string(line) + "\n");
    }
    require(found.empty(), "nothing follows the text");
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    std::optional<GroupingLocale> locale;
    if (bytes.below(4) == 3) {
        locale.emplace();
    }
    const std::size_t subject = bytes.below(3);
    const std::size_t indent = bytes.below(48);
    const std::size_t width = 3 + bytes.below(96);
    const std::string head = subject == 0 ? bytes.text(60) : "";
    const View text = bytes.rest();  // no byte to spare behind it
    if (subject == 0) {
        checkParagraph(text, head, indent, width);
    } else if (subject == 1) {
        checkCuts(std::string(text), text);
    } else {
        checkNumbers<int, unsigned, long long, unsigned long long, double>(text, bytes);
    }
    return 0;
}
