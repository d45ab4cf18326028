// Arguments cut into name and value, and texts cut at commas, as plain loops cut them.

#include <array>
#include <locale>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "bytes.h"
#include "check.h"
#include "recognizers/token_helpers.h"
#include "support/grouping_locale.h"

namespace fuzzing {
namespace {

std::size_t plainDashLength(const std::string& text, std::size_t at) {
    static const std::array<std::string, 6> dashes{
        "-", "\u2012", "\u2013", "\u2014", "\u2015", "\u2053"};
    for (const std::string& dash : dashes) {
        if (text.compare(at, dash.size(), dash) == 0) {
            return dash.size();
        }
    }
    return 0;
}

void compareDashes(const std::string& text) {
    for (std::size_t at = 0; at <= text.size(); ++at) {
        require(zarn_3_3::getDashLength(text, at) == plainDashLength(text, at), "length of a dash");
    }
    try {
        zarn_3_3::getDashLength(text, text.size() + 1);
        require(false, "a dash behind the end is an error");
    } catch (const std::out_of_range&) {
    }
}

void compareCut(const std::string& argument) {
    const std::locale global;
    const auto& classes = std::use_facet<std::ctype<char>>(global);
    const auto isSpace = [&classes](char c) { return classes.is(std::ctype_base::space, c); };
    std::size_t at = plainDashLength(argument, 0);
    at += plainDashLength(argument, at);
    std::string name;
    while (at < argument.size() && argument[at] != '=' && !isSpace(argument[at])) {
        name += argument[at++];
    }
    const bool isAttached = at < argument.size();
    if (isAttached && argument[at++] != '=') {
        while (at < argument.size() && isSpace(argument[at])) {
            ++at;
        }
    }

    std::string_view foundName = "stale";
    std::string_view foundValue = "untouched";
    require(zarn_3_3::splitOptionValue(argument, &foundName, &foundValue) == isAttached,
            "whether a value is attached");
    requireEqual(std::string(foundName), name, "the name");
    requireEqual(
        std::string(foundValue), isAttached ? argument.substr(at) : "untouched", "the value");
}

void compareList(const std::string& text) {
    std::vector<std::string> expected{"before"};
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, ',');) {
        expected.push_back(piece);
    }
    std::vector<std::string> pieces{"before"};
    require(zarn_3_3::split(text, pieces) == zarn_3_3::resultSuccess, "cutting never fails");
    require(pieces == expected, "the pieces between commas");
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    std::optional<GroupingLocale> locale;
    if (bytes.flag()) {
        locale.emplace();
    }
    const std::string text = bytes.text();
    compareDashes(text);
    compareCut(text);
    compareList(text);
    return 0;
}
