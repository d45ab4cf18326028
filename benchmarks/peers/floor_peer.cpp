// What the work costs when nothing else is done: one flat hash table, views into the arguments, no
// copies, no error texts, no help.

#include <charconv>
#include <cstring>
#include <string_view>

#include "peer.h"
#include "peers/field_store.h"

namespace zarn_benchmarks {

namespace {

constexpr std::uint32_t none = 0xFFFFFFFFu;

struct Entry {
    const char* text;
    std::uint32_t size;
    std::uint32_t next;
    union {
        int integer;
        double real;
    };
};

struct Chain {
    std::uint32_t first = none;
    std::uint32_t last = none;
};

class FloorSession final : public ISession {
public:
    explicit FloorSession(const Vocabulary& words) : vocabulary(words) {
        std::size_t size = 16;
        while (size < words.options.size() * 2) {
            size *= 2;
        }
        slots.assign(size, none);
        for (std::size_t i = 0; i < words.options.size(); ++i) {
            *find(words.options[i].name) = static_cast<std::uint32_t>(i);
        }
    }

    void parse(const CommandLine& line) override {
        chains.resize(vocabulary.options.size());
        entries.reserve(static_cast<std::size_t>(line.argc()));
        for (int i = 1; i < line.argc(); ++i) {
            parseOne(line.argv()[i]);
        }
    }

    void read(const std::vector<std::size_t>& asked, Checksum* sum) override {
        for (std::size_t option : asked) {
            const std::uint32_t found = *find(vocabulary.options[option].name);
            for (std::uint32_t i = chains[found].first; i != none; i = entries[i].next) {
                readOne(vocabulary.options[found].kind, entries[i], sum);
            }
        }
    }

private:
    std::uint32_t* find(std::string_view name) {
        std::uint64_t hash = name.size();
        for (char c : name) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
        }
        for (std::size_t i = hash ^ (hash >> 20);; ++i) {
            std::uint32_t& slot = slots[i & (slots.size() - 1)];
            if (slot == none || vocabulary.options[slot].name == name) {
                return &slot;
            }
        }
    }

    void parseOne(const char* argument) {
        if (argument[0] != '-' || argument[1] != '-') {
            keep(0, argument);
            return;
        }
        const std::string_view text = argument + 2;
        const std::size_t end = text.find('=');
        const std::uint32_t option = *find(text.substr(0, end));
        if (option == none) {
            throw std::runtime_error("unknown option");
        }
        keep(option, end == std::string_view::npos ? std::string_view() : text.substr(end + 1));
    }

    void keep(std::uint32_t option, std::string_view text) {
        const auto index = static_cast<std::uint32_t>(entries.size());
        Chain& chain = chains[option];
        (chain.first == none ? chain.first : entries[chain.last].next) = index;
        chain.last = index;
        Entry entry{text.data(), static_cast<std::uint32_t>(text.size()), none, {0}};
        const Kind kind = vocabulary.options[option].kind;
        const char* end = text.data() + text.size();
        if (kind == Kind::integer) {
            requireAll(std::from_chars(text.data(), end, entry.integer), end);
        } else if (kind == Kind::real) {
            requireAll(std::from_chars(text.data(), end, entry.real), end);
        } else if (kind == Kind::choice) {
            requireChoice(text.data());
        }
        entries.push_back(entry);
    }

    static void requireAll(const std::from_chars_result& result, const char* end) {
        if (result.ec != std::errc() || result.ptr != end) {
            throw std::runtime_error("not a number");
        }
    }

    static void readOne(Kind kind, const Entry& entry, Checksum* sum) {
        switch (kind) {
            case Kind::integer:
                sum->addInteger(entry.integer);
                break;
            case Kind::real:
                sum->addReal(entry.real);
                break;
            case Kind::text:
            case Kind::choice:
                sum->addText({entry.text, entry.size});
                break;
            case Kind::flag:
            case Kind::toggle:
                sum->addNumber(1);
                break;
        }
    }

    const Vocabulary& vocabulary;
    std::vector<std::uint32_t> slots;
    std::vector<Chain> chains;
    std::vector<Entry> entries;
};

}  // namespace

Peer floorPeer() {
    Limits limits;
    limits.help = false;
    return makePeer<FloorSession>("floor", limits);
}

}  // namespace zarn_benchmarks
