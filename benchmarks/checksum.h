// The running sum over all values that a program reads: equal for every peer, or the run stops.

#ifndef ZARN_BENCHMARKS_CHECKSUM_H
#define ZARN_BENCHMARKS_CHECKSUM_H

#include <cstdint>
#include <cstring>
#include <string_view>

namespace zarn_benchmarks {

// Every byte, every length and the order count. A few nanoseconds for a short text, so that the
// check does not hide what it checks.
class Checksum {
public:
    void addNumber(std::uint64_t number) {
        sum = (sum ^ number) * 0x9E3779B97F4A7C15u;
        sum ^= sum >> 29;
    }

    void addInteger(int number) { addNumber(static_cast<std::uint64_t>(number)); }

    void addReal(double number) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &number, sizeof bits);
        addNumber(bits);
    }

    void addText(std::string_view text) {
        addNumber(text.size());
        while (!text.empty()) {
            std::uint64_t chunk = 0;
            const std::size_t size = text.size() < sizeof chunk ? text.size() : sizeof chunk;
            std::memcpy(&chunk, text.data(), size);
            addNumber(chunk);
            text.remove_prefix(size);
        }
    }

    std::uint64_t value() const { return sum; }

private:
    std::uint64_t sum = 0;
};

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_CHECKSUM_H
