#include "arguments.h"

#include <algorithm>
#include <cctype>

namespace fuzzing {

int parseArguments(zarn_3_3::IParser& parser,
                   const std::vector<std::string>& arguments,
                   zarn_3_3::IParseResult* result) {
    std::vector<std::vector<char>> exact;
    std::vector<const char*> argv{nullptr};  // the name of the program is never read
    for (const std::string& argument : arguments) {
        exact.emplace_back(argument.c_str(), argument.c_str() + argument.size() + 1);
        argv.push_back(exact.back().data());
    }
    return parser.parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
}

bool canBeLines(const std::vector<std::string>& arguments) {
    const auto canBeLine = [](const std::string& argument) {
        return !argument.empty() && argument.find('\n') == std::string::npos &&
               std::isspace(static_cast<unsigned char>(argument.front())) == 0 &&
               argument.front() != ';' && argument.front() != '#' && argument.back() != '\r';
    };
    return !arguments.empty() && std::all_of(arguments.begin(), arguments.end(), canBeLine);
}

// With a line feed at the end: the text "-1" alone would read as "?".
std::string linesOf(const std::vector<std::string>& arguments) {
    std::string text;
    for (const std::string& argument : arguments) {
        text += argument + "\n";
    }
    return text;
}

}  // namespace fuzzing
