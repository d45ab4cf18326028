// A tool for the guide whose author makes mistakes, and is told of each.

#include <zarn/typed.h>

#include <chrono>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

// Calls `author` with a parser, and prints what is thrown then or by the first parse.
template <typename Author>
void tell(Author author) {
    zarn::Parser parser;
    const char* const arguments[] = {"tool"};
    try {
        author(parser);
        const zarn::Result result = parser.parse(1, arguments);
        std::cout << "no mistake: " << result.code() << '\n';
    } catch (const std::logic_error& mistake) {
        std::cout << mistake.what() << '\n';
    }
}

}  // namespace

int main() {
    // <part>
}
