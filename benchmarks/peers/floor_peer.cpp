// What the work costs when nothing else is done: one flat hash table, views into the arguments, no
// copies, no error texts, no help.

#include <charconv>
#include <cstring>
#include <string_view>

#include "peers/field_session.h"

namespace zarn_benchmarks {

namespace {

constexpr std::uint32_t none = 0xFFFFFFFFu;

struct Entry {
    Field value;
    std::uint32_t next;
};

struct Chain {
    std::uint32_t first = none;
    std::uint32_t last = none;
};

template <typename Number>
Number toNumber(const char* text) {
    Number number{};
    const char* end = text + std::strlen(text);
    const std::from_chars_result result = std::from_chars(text, end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        throw std::runtime_error("not a number");
    }
    return number;
}

class FloorSession final : public Session {
public:
    explicit FloorSession(const Vocabulary& vocabulary) : Session(vocabulary) {
        std::size_t size = 16;
        while (size < vocabulary.options.size() * 2) {
            size *= 2;
        }
        slots_.assign(size, none);
        for (std::size_t i = 0; i < vocabulary.options.size(); ++i) {
            *find(vocabulary.options[i].name) = static_cast<std::uint32_t>(i);
        }
    }

    void parse(const CommandLine& line) override {
        chains_.resize(vocabulary_.options.size());
        entries_.reserve(static_cast<std::size_t>(line.argc()));
        for (int i = 1; i < line.argc(); ++i) {
            parseOne(line.argv()[i]);
        }
    }

    void read(std::size_t option, Checksum* sum) override {
        const std::uint32_t found = *find(item(option).name);
        for (std::uint32_t i = chains_[found].first; i != none; i = entries_[i].next) {
            addField(item(found).kind, entries_[i].value, sum);
        }
    }

private:
    std::uint32_t* find(std::string_view name) {
        std::uint64_t hash = name.size();
        for (char c : name) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
        }
        for (std::size_t i = hash ^ (hash >> 20);; ++i) {
            std::uint32_t& slot = slots_[i & (slots_.size() - 1)];
            if (slot == none || item(slot).name == name) {
                return &slot;
            }
        }
    }

    void parseOne(const char* argument) {
        if (argument[0] != '-' || argument[1] != '-') {
            keep(0, argument);
            return;
        }
        const char* name = argument + 2;
        const char* end = strchrnul(name, '=');
        const std::uint32_t option = *find({name, static_cast<std::size_t>(end - name)});
        if (option == none) {
            throw std::runtime_error("unknown option");
        }
        keep(option, *end == '=' ? end + 1 : end);
    }

    void keep(std::uint32_t option, const char* text) {
        const auto index = static_cast<std::uint32_t>(entries_.size());
        Chain& chain = chains_[option];
        (chain.first == none ? chain.first : entries_[chain.last].next) = index;
        chain.last = index;
        entries_.push_back({valueOf(item(option).kind, text), none});
    }

    static Field valueOf(Kind kind, const char* text) {
        if (kind == Kind::integer) {
            return toNumber<int>(text);
        }
        if (kind == Kind::real) {
            return toNumber<double>(text);
        }
        if (kind == Kind::choice) {
            requireChoice(text);
        }
        return isSwitch(kind) ? Field(1) : Field(text);
    }

    std::vector<std::uint32_t> slots_;
    std::vector<Chain> chains_;
    std::vector<Entry> entries_;
};

}  // namespace

Peer floorPeer() { return makePeer<FloorSession>("floor", canTakeMany | canBeCounted); }

}  // namespace zarn_benchmarks
