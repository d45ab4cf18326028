// What is written to a stream of the console.

#ifndef ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H
#define ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H

#include <ostream>
#include <sstream>
#include <string>

// Takes the place of a stream's buffer while it lives.
class CapturedStream {
public:
    explicit CapturedStream(std::ostream& captured)
        : stream(captured), before(captured.rdbuf(taken.rdbuf())) {}
    ~CapturedStream() { stream.rdbuf(before); }

    std::string text() const { return taken.str(); }

private:
    std::ostringstream taken;
    std::ostream& stream;
    std::streambuf* before;
};

#endif  // ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H
