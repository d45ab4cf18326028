// A tool for the guide: what it declares, and what it does when its command line is right.

#include <zarn/typed.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    std::cout << std::unitbuf;  // in order with what run prints
    zarn::Parser parser;
    // <part>
    if (const auto ended = parser.run(argc, argv)) {
        return *ended;
    }
    [[maybe_unused]] const zarn::Result& result = parser.result();
    // <part>
}
