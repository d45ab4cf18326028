#include "text/plain_ways.h"

#include <algorithm>
#include <locale>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "parser/argument_sources.h"
#include "text/cut_argument.h"
#include "text/number_text.h"
#include "text/paragraph.h"
#include "text/split.h"

namespace zarn_3_3::testing_support {
namespace {

using namespace internal;
using Texts = std::vector<std::string>;
using View = std::string_view;

void require(bool holds, const char* what) { holds ? void() : throw std::logic_error(what); }

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
void checkReadingAs(View text) {
    for (const Trailing trailing : {Trailing::refused, Trailing::ignored}) {
        const std::string found =
            bitsOf(numberFromText<Number>(text, trailing, globalTextLocale()));
        require(found == extracted<Number>(text, trailing), "what a number is read as");
    }
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
    const std::locale global;
    std::string blanks;
    for (int c = -128; c < 128; ++c) {
        blanks.append(std::isspace(static_cast<char>(c), global), static_cast<char>(c));
    }
    View rest = argument;
    rest.remove_prefix(plainDashLength(rest));
    rest.remove_prefix(plainDashLength(rest));
    const std::size_t end = std::min(rest.size(), rest.find_first_of(blanks + "="));
    const bool hasValue = end < rest.size();
    const std::size_t start =
        hasValue && rest[end] == '=' ? end + 1 : rest.find_first_not_of(blanks, end);
    const View right = hasValue ? rest.substr(std::min(rest.size(), start)) : "untouched";
    View name = "stale";
    View value = "untouched";
    require(splitOptionValue(argument, &name, &value, globalTextLocale()) == hasValue, "a value");
    require(name == rest.substr(0, end), "the name in an argument");
    require(value == right, "the value in an argument");
    require(getDashLength(argument, 0) == plainDashLength(argument), "a dash");
}

Texts pieces(const std::string& text, char separator) {
    Texts all;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, separator);) {
        all.push_back(piece);
    }
    return all;
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

}  // namespace

void checkReading(View text) {
    checkReadingAs<bool>(text);
    checkReadingAs<int>(text);
    checkReadingAs<unsigned>(text);
    checkReadingAs<long long>(text);
    checkReadingAs<unsigned long long>(text);
    checkReadingAs<double>(text);
    const std::string found = bitsOf(hexadecimalFromText(text, globalTextLocale()));
    require(found == extracted<unsigned long long>(text, Trailing::ignored, true), "hexadecimal");
}

template <typename Number>
void checkWriting(Number number) {
    std::ostringstream stream;
    stream << number;
    require(textFromNumber(number) == stream.str(), "what a number is written as");
}

template void checkWriting(long long);
template void checkWriting(unsigned long long);
template void checkWriting(double);

void checkCuts(View text) {
    checkArgument(std::string(text));
    Texts lines;
    std::vector<std::size_t> numbers;
    std::size_t number = 0;
    for (std::string line : pieces(std::string(text), '\n')) {
        line.erase(0, line.find_first_not_of(" \t\v\f\r"));
        ++number;
        if (!line.empty() && line[0] != ';' && line[0] != '#') {
            lines.push_back(line.substr(0, line.find_last_not_of('\r') + 1));
            numbers.push_back(number);
        }
    }
    std::vector<TextLine> found;
    TextRest rest{text, 1};
    parseStreamToArgs(rest, found, text.size());
    const auto isSame = [&](const TextLine& line) {
        const auto at = static_cast<std::size_t>(&line - found.data());
        return line.argument == lines[at] && line.line == numbers[at];
    };
    require(found.size() == lines.size() && std::all_of(found.begin(), found.end(), isSame),
            "the arguments in the lines of a text");
    Texts cut;
    split(text, cut);
    require(cut == pieces(std::string(text), ','), "the pieces between commas");
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

}  // namespace zarn_3_3::testing_support
