// A tool for the guide with types of its own: the types, what it declares, and what it does.

#include <zarn/typed.h>

#include <iostream>
#include <optional>
#include <sstream>
#include <string>

// <part>

int main(int argc, char** argv) {
    zarn::Parser parser;
    // <part>
    if (const auto ended = parser.run(argc, argv)) {
        return *ended;
    }
    // <part>
}
