// Turns the bytes that a fuzzer makes up into decisions.

#ifndef ZARN_FUZZ_BYTES_H
#define ZARN_FUZZ_BYTES_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace fuzzing {

// Reads an input once, from its front. At the end every answer is 0 or empty. A copy goes on from
// where the original stood, so that one input can be acted out twice.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : at(data), end(data + size) {}

    bool atEnd() const { return at == end; }

    // A number below `limit`, which is 256 at most.
    unsigned below(unsigned limit) { return atEnd() ? 0 : *at++ % limit; }

    bool flag() { return below(2) != 0; }

    template <typename Choice, std::size_t count>
    const Choice& pick(const Choice (&choices)[count]) {
        return choices[below(count)];
    }

    // A number of whatever bits.
    template <typename Number>
    Number number() {
        Number made{};
        const std::size_t size = std::min(sizeof made, left());
        if (size != 0) {
            std::memcpy(&made, at, size);
        }
        at += size;
        return made;
    }

    // The bytes up to the next NUL, which no argument can hold.
    std::string text() {
        const std::uint8_t* const stop = std::find(at, end, 0);
        std::string made(at, stop);
        at = stop == end ? stop : stop + 1;
        return made;
    }

private:
    std::size_t left() const { return static_cast<std::size_t>(end - at); }

    const std::uint8_t* at;
    const std::uint8_t* end;
};

}  // namespace fuzzing

#endif  // ZARN_FUZZ_BYTES_H
