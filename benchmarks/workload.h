// What the programs do: a vocabulary, a command line of it, and the values to read back, whose
// checksum must be the same for every peer.

#ifndef ZARN_BENCHMARKS_WORKLOAD_H
#define ZARN_BENCHMARKS_WORKLOAD_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace zarn_benchmarks {

// How many arguments, and how many options, what grows is measured at.
inline constexpr std::size_t argumentCounts[] = {1000, 100000, 1000000};
inline constexpr std::size_t vocabularySizes[] = {10, 100, 1000, 10000};

enum class Kind {
    text,
    integer,
    real,
    choice,  // one of `choices`
    flag,    // a switch without a value
    toggle,  // a boolean with a "no-" form
};

inline bool isSwitch(Kind kind) { return kind == Kind::flag || kind == Kind::toggle; }

inline constexpr const char* choices[] = {"red", "green", "blue", "white"};

struct DeclaredOption {
    std::string name;
    std::string description;
    Kind kind = Kind::text;
    bool positional = false;
};

struct Vocabulary {
    std::vector<DeclaredOption> options;
    bool multiValued = false;  // each option keeps all its values, or its only one
};

// Arguments as main has them, in one block of memory.
class CommandLine {
public:
    void add(const std::string& argument) { bytes_ += argument + '\0'; }

    // Once, when everything is added.
    void finish();

    int argc() const { return static_cast<int>(pointers_.size()) - 1; }
    char** argv() const { return pointers_.data(); }

    // The arguments without the program's name, one a line.
    std::string lines() const;

private:
    static constexpr std::string_view program{"bench", 6};

    std::string bytes_{program};
    mutable std::vector<char*> pointers_;  // some peers want to permute them
};

// The running sum over values. Every byte, every length and the order count. A few nanoseconds for
// a short text, so that the check does not hide what it checks.
class Checksum {
public:
    void add(bool value) { addNumber(value ? 1 : 0); }
    void add(int value) { addNumber(static_cast<std::uint64_t>(value)); }

    void add(double value) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        addNumber(bits);
    }

    void add(std::string_view text) {
        addNumber(text.size());
        while (!text.empty()) {
            std::uint64_t chunk = 0;
            const std::size_t size = text.size() < sizeof chunk ? text.size() : sizeof chunk;
            std::memcpy(&chunk, text.data(), size);
            addNumber(chunk);
            text.remove_prefix(size);
        }
    }

    void add(const char* text) { add(std::string_view(text)); }  // else it would be a bool

    template <typename Item>
    void add(const std::vector<Item>& items) {
        for (const Item& item : items) {
            add(item);
        }
    }

    std::uint64_t value() const { return sum_; }

private:
    void addNumber(std::uint64_t number) {
        sum_ = (sum_ ^ number) * 0x9E3779B97F4A7C15u;
        sum_ ^= sum_ >> 29;
    }

    std::uint64_t sum_ = 0;
};

struct Workload {
    Vocabulary vocabulary;
    CommandLine line;
    std::vector<std::size_t> asked;  // the options that are read back, in this order
    std::uint64_t expected = 0;      // the checksum over their values
    std::size_t steps = 1;           // what a time is divided by
};

enum class ArgumentForm {
    exact,    // "--name=value"
    cut,      // the name without its last byte
    negated,  // "--no-name"
    plain,    // a value for the one item there is
};

// 20 of 50 options of mixed kinds are given and read. A step is all of it: there are several in a
// round, so that the clock is no part.
Workload startUp();

// `count` arguments for 50 options that keep all their values.
Workload manyArguments(std::size_t count, Kind kind);

// A thousand arguments for options spread over a vocabulary of `options`.
Workload names(std::size_t options, Kind kind, ArgumentForm form);

// `count` plain arguments.
Workload positionals(std::size_t count);

// Text options that nobody gives, with descriptions of `descriptionSize` bytes.
Workload declarations(std::size_t options, std::size_t descriptionSize);

// `count` pieces, joined by ',' to the value of the one option there is.
Workload pieces(std::size_t count);

// One value of `size` bytes.
Workload longValue(std::size_t size);

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_WORKLOAD_H
