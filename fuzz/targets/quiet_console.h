// Keeps what the library prints away from the console of a fuzzer, and readable.

#ifndef ZARN_FUZZ_QUIET_CONSOLE_H
#define ZARN_FUZZ_QUIET_CONSOLE_H

#include <iostream>
#include <sstream>
#include <string>

namespace fuzzing {

// Takes the place of the buffers of the standard streams while it lives.
class QuietConsole {
public:
    QuietConsole() = default;
    QuietConsole(const QuietConsole&) = delete;
    QuietConsole& operator=(const QuietConsole&) = delete;
    ~QuietConsole() {
        std::cout.rdbuf(output);
        std::cerr.rdbuf(errors);
    }

    std::string log() const { return logged.str(); }
    std::string warnings() const { return warned.str(); }

private:
    std::stringbuf logged{std::ios::out};
    std::stringbuf warned{std::ios::out};
    std::streambuf* output = std::cout.rdbuf(&logged);
    std::streambuf* errors = std::cerr.rdbuf(&warned);
};

}  // namespace fuzzing

#endif  // ZARN_FUZZ_QUIET_CONSOLE_H
