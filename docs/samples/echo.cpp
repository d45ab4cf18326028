// A tool for the guide that says what it hears: each value as it was typed, and its number.

#include <zarn/typed.h>

#include <cstdint>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    std::cout << std::unitbuf;  // in order with what run prints
    zarn::Parser parser;
    // <part>
    const zarn::OnValue echo(parser, [](const char* name, const zarn::Value& value) {
        std::cout << name << " '" << value.text << "'";
        if (const auto number = zarn::get<long long>(value)) {
            std::cout << " = " << *number;
        } else if (const auto real = zarn::get<double>(value)) {
            std::cout << " = " << *real;
        }
        std::cout << '\n';
    });
    return parser.run(argc, argv).value_or(0);
}
