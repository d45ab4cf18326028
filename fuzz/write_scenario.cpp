// Writes the scenario that the bytes of the standard input stand for, to be kept in
// tests/scenarios.

#include <cstdint>
#include <iostream>
#include <iterator>
#include <string>

#include "scenario_from_bytes.h"

int main() {
    const std::string input{std::istreambuf_iterator<char>(std::cin), {}};
    fuzzing::Bytes bytes(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    fuzzing::outageFrom(bytes);
    std::cout << fuzzing::scenarioFrom(bytes);
}
