#include "text/cut_argument.h"

#include <array>
#include <cstdint>
#include <locale>
#include <stdexcept>

#include "text/utf.h"

namespace zarn_3_3 {
namespace {

constexpr char hyphen = TROV_2_18::utf32_to_utf8(U'\x002D').view()[0];

// Word processors turn "--" into one of these; a pasted command line must still work.
constexpr std::array longDashes{
    TROV_2_18::utf32_to_utf8(U'\x2012'),  // figure dash
    TROV_2_18::utf32_to_utf8(U'\x2013'),  // en dash
    TROV_2_18::utf32_to_utf8(U'\x2014'),  // em dash
    TROV_2_18::utf32_to_utf8(U'\x2015'),  // horizontal bar
    TROV_2_18::utf32_to_utf8(U'\x2053'),  // swung dash
};

static_assert(longDashes.front().view()[0] == longDashLead &&
              longDashes.back().view()[0] == longDashLead);

[[gnu::cold, gnu::noinline]] std::size_t longDashLength(std::string_view text) {
    for (const auto& dash : longDashes) {
        if (text.substr(0, dash.view().size()) == dash.view()) {
            return dash.view().size();
        }
    }
    return 0;
}

}  // namespace

std::size_t leadingDashLength(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    if (text[0] == hyphen) {
        return 1;
    }
    return text[0] == longDashLead ? longDashLength(text) : 0;
}

namespace {

// Two leading dashes at most are taken off, a third belongs to the name.
std::string_view withoutDashes(std::string_view argument) {
    argument.remove_prefix(leadingDashLength(argument));
    argument.remove_prefix(leadingDashLength(argument));
    return argument;
}

// `rest` is the argument from its name on, which ends at `end`.
template <typename IsSpace>
bool splitAt(std::string_view rest,
             std::size_t end,
             std::string_view* name,
             std::string_view* value,
             IsSpace isSpace) {
    *name = rest.substr(0, end);
    if (end == rest.size()) {
        return false;
    }
    // Behind a sign the value begins at once, blanks and all; blanks between name and value
    // separate them, however many there are.
    std::size_t valueStart = end + 1;
    if (rest[end] != '=') {
        while (valueStart < rest.size() && isSpace(rest[valueStart])) {
            ++valueStart;
        }
    }
    *value = rest.substr(valueStart);
    return true;
}

// A bit for each byte below 64 that may end a name: the sign, white space and a terminator.
constexpr std::uint64_t endsOfNames() {
    std::uint64_t ends = 1;
    for (char c = '\1'; c < 64; ++c) {
        ends |= std::uint64_t{c == '=' || internal::isClassicSpace(c)} << c;
    }
    return ends;
}

// All arguments come through here: letters pass with one comparison, the rest with one more.
constexpr bool mayEndName(char c) {
    constexpr std::uint64_t ends = endsOfNames();
    const auto byte = static_cast<unsigned char>(c);
    return ((ends >> (byte % 64)) & (byte < 64 ? 1U : 0U)) != 0;
}

// Where the name ends with which a text begins. There is a terminator behind the text.
std::size_t endOfName(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        while (!mayEndName(*at)) {
            ++at;
        }
        if (*at != '\0' || at == end) {
            return static_cast<std::size_t>(at - text.data());
        }
        ++at;  // a NUL inside the text
    }
}

// Few tools set a locale, so this one is to be small.
[[gnu::cold, gnu::noinline]] bool splitAsLocaleHasIt(const std::string& argument,
                                                     std::string_view* name,
                                                     std::string_view* value) {
    // Held while its facet is used: another thread may set another one.
    const std::locale global;
    const auto& classes = std::use_facet<std::ctype<char>>(global);
    const auto isSpace = [&classes](char c) { return classes.is(std::ctype_base::space, c); };
    const std::string_view rest = withoutDashes(argument);
    std::size_t end = 0;
    while (end != rest.size() && rest[end] != '=' && !isSpace(rest[end])) {
        ++end;
    }
    return splitAt(rest, end, name, value, isSpace);
}

}  // namespace

std::size_t getDashLength(const std::string& text, std::size_t pos) {
    if (pos > text.size()) {
        throw std::out_of_range("basic_string::substr: position behind the end");
    }
    return leadingDashLength(std::string_view(text).substr(pos));
}

bool splitOptionValue(const std::string& argument,
                      std::string_view* name,
                      std::string_view* value,
                      internal::TextLocale locale) {
    if (locale == internal::TextLocale::classic) {
        const std::string_view rest = withoutDashes(argument);
        return splitAt(rest, endOfName(rest), name, value, internal::isClassicSpace);
    }
    return splitAsLocaleHasIt(argument, name, value);
}

}  // namespace zarn_3_3
