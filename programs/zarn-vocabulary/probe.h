// What the library itself makes of a beginning: which name or value it stands for.

#ifndef ZARN_VOCABULARY_PROBE_H
#define ZARN_VOCABULARY_PROBE_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "description.h"
#include "zarn/typed.h"

namespace vocabulary {

// What an argument was taken for.
struct Meaning {
    static constexpr std::size_t nothing = static_cast<std::size_t>(-1);

    std::size_t item = nothing;
    std::string value;  // in full; of booleans "1" or "0", of switches none
};

// A parser that holds no more of a vocabulary than what decides about beginnings, and is asked one
// argument at a time.
class Probe final : private zarn::EventHandler {
public:
    // Of names: each item is a switch, or a boolean, which has "no-" forms.
    static Probe ofNames(const std::vector<Item>& items);

    // Of values that are texts; deprecated ones begin like the others.
    static Probe ofValues(const Item& item);

    // `beginning`: not empty, and on one line.
    Meaning name(const std::string& beginning) { return ask("--" + beginning); }
    Meaning value(const std::string& beginning) { return ask("--v=" + beginning); }

    // What the last argument could have stood for when that was a tie, else nothing.
    std::vector<std::string> candidates();

private:
    Probe() = default;

    Meaning ask(const std::string& argument);
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const zarn::Value& value) override;

    zarn::Parser parser_{{}, 0};
    std::map<std::string, std::size_t> items_;  // by their primary names
    Meaning heard_;
};

}  // namespace vocabulary

#endif  // ZARN_VOCABULARY_PROBE_H
