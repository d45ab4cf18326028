#include "questions.h"

#include <cstring>
#include <limits>

#include "check.h"
#include "observation.h"

namespace fuzzing {

using namespace zarn_3_3;

namespace {

constexpr int last = std::numeric_limits<int>::max();

std::string get(IParseResult& result, const char* name, int from, int to) {
    constexpr int first = std::numeric_limits<int>::min();
    const bool isDefault = result.get(name, first, first).status == statusFound;
    const Value value = result.get(name, from, to);
    const bool isInside = from <= value.position && value.position <= to;
    require(value.status != statusFound || isDefault || isInside, "a value is in its range");
    return show(value);
}

}  // namespace

void checkHelp(IParser& parser, const std::vector<std::string>& names) {
    const auto ask = [](auto question) {
        const char* const text = question();
        require(text == question(), "a text is kept once");
        const std::size_t size = std::strlen(text);
        require(size == 0 || text[size - 1] == '\n', "help ends in a whole line");
    };
    const char* const name = names.empty() ? "unknown" : names.back().c_str();
    for (const bool hidden : {false, true}) {
        ask([&] { return parser.getDescription(hidden); });
        ask([&] { return parser.getGlobalModifiersDescription(hidden); });
        ask([&] { return parser.getDescription(name, hidden); });
        ask([&] { return parser.getActionModifiersDescription(name, hidden); });
    }
}

std::string queries(Bytes& bytes, IParseResult& result, const std::vector<std::string>& names) {
    const int bounds[] = {0, last, std::numeric_limits<int>::min(), 1, 2, 3, 5, 8};
    const std::string unknown = "unknown";
    std::string seen;
    for (unsigned left = bytes.below(16); left > 0; --left) {
        const unsigned which = bytes.below(static_cast<unsigned>(names.size()) + 1);
        const char* const name = which < names.size() ? names[which].c_str() : unknown.c_str();
        const unsigned operation = bytes.below(5);
        const int from = bytes.pick(bounds);
        const int to = bytes.pick(bounds);
        seen += operation == 0   ? std::to_string(result.present(name, from, to))
                : operation == 1 ? get(result, name, from, to)
                : operation == 2 ? show(result.next(name))
                : operation == 3 ? std::to_string(result.nextPosition())
                                 : show(getLastValue(&result, name, from, to));
        seen += "\n";
    }
    return seen;
}

std::string declarations(IParser& parser, const std::vector<std::string>& names) {
    std::string seen;
    for (const std::string& name : names) {
        seen += parser.isOptionDeclared(name.c_str(), false, nullptr) ? "o" : "-";
        seen += parser.isOptionDeclared(name.c_str(), true, nullptr) ? "a" : "-";
        seen += parser.isOptionDeclared(name.c_str(), false, "main") ? "m" : "-";
    }
    return seen + "\n";
}

}  // namespace fuzzing
