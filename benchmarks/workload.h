// What the programs do: a vocabulary, a command line of it, and the values to read back.

#ifndef ZARN_BENCHMARKS_WORKLOAD_H
#define ZARN_BENCHMARKS_WORKLOAD_H

#include <cstddef>
#include <cstdint>
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
    void add(std::string_view argument);

    // Once, when everything is added.
    void finish();

    int argc() const { return static_cast<int>(pointers.size()) - 1; }
    char** argv() const { return pointers.data(); }

    // The arguments without the program's name, one a line.
    std::string lines() const;

private:
    std::string bytes;
    std::vector<std::size_t> starts;
    mutable std::vector<char*> pointers;  // some peers want to permute them
};

struct Given {
    std::uint32_t option;
    std::string value;
};

struct Workload {
    Vocabulary vocabulary;
    CommandLine line;
    std::vector<std::size_t> asked;  // the options that are read back, in this order
    std::uint64_t expected = 0;      // the checksum over their values
    std::size_t steps = 1;           // what a time is divided by
};

enum class NameForm {
    exact,
    cut,      // without its last byte
    negated,  // "--no-name"
};

// 20 of 50 options of mixed kinds are given and read. A step is all of it: there are several in a
// round, so that the clock is no part.
Workload startUp();

// `count` arguments "--name=value" for 50 options that keep all their values.
Workload manyArguments(std::size_t count, Kind kind);

// `namesGiven` arguments for options spread over a vocabulary of `options`.
inline constexpr std::size_t namesGiven = 1000;
Workload names(std::size_t options, Kind kind, NameForm form);

// `count` plain arguments for the one item there is.
Workload positionals(std::size_t count);

// Text options that nobody gives, with descriptions of `descriptionSize` bytes.
Workload declarations(std::size_t options, std::size_t descriptionSize);

// `count` pieces, joined by ',' to the value of the one option there is.
Workload pieces(std::size_t count);

// One value of `size` bytes.
Workload longValue(std::size_t size);

}  // namespace zarn_benchmarks

#endif  // ZARN_BENCHMARKS_WORKLOAD_H
