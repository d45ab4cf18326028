// What is written to a stream of the console.

#ifndef ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H
#define ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H

#include <functional>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

// Takes the place of a stream's buffer while it lives, and hands over each character.
class TappedStream final : private std::streambuf {
public:
    TappedStream(std::ostream& tapped, std::function<void(char)> taker)
        : take(std::move(taker)), stream(tapped), before(tapped.rdbuf(this)) {}
    TappedStream(const TappedStream&) = delete;
    TappedStream& operator=(const TappedStream&) = delete;
    ~TappedStream() override { stream.rdbuf(before); }

private:
    int_type overflow(int_type character) override {
        take(traits_type::to_char_type(character));
        return traits_type::not_eof(character);
    }

    std::function<void(char)> take;
    std::ostream& stream;
    std::streambuf* before;
};

class CapturedStream {
public:
    explicit CapturedStream(std::ostream& captured)
        : tap(captured, [this](char c) { taken += c; }) {}

    const std::string& text() const { return taken; }

private:
    std::string taken;
    TappedStream tap;
};

#endif  // ZARN_TESTS_SUPPORT_CAPTURED_STREAM_H
