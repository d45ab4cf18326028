// How declared items are found by name.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <sstream>

#include "options/registered_option_storage.h"
#include "text/text_hash.h"

namespace zarn_3_3 {
namespace {

// Compares the lookups with what they are to find, item by item and without an index.
void expectSlowAnswers(const RegisteredOptionStorage& registry, const std::string& text) {
    const std::size_t size = registry.items().size();
    std::size_t first = size;
    bool isDeclared[2] = {false, false};
    std::vector<std::string> longer;  // what begins so, each once
    for (std::size_t i = 0; i < size; ++i) {
        const OptionDescription& item = registry.items()[i];
        for (const std::string& name : item.names) {
            isDeclared[item.kind] = isDeclared[item.kind] || name == text;
            for (const std::string& form : {name, item.type == vtBool ? "no-" + name : name}) {
                first = form == text ? std::min(first, i) : first;
                const bool isNew = std::find(longer.begin(), longer.end(), form) == longer.end();
                longer.resize(longer.size() + (isNew && form.rfind(text, 0) == 0 ? 1 : 0), form);
            }
        }
    }
    std::size_t found = size;
    const result_t code = findOption(text, found, registry);
    EXPECT_EQ(code == resultSuccess ? found : size, first) << text;
    EXPECT_EQ(registry.isDeclared(text, true, nullptr), isDeclared[kindAction]) << text;
    EXPECT_EQ(registry.isDeclared(text, false, nullptr), isDeclared[kindOption]) << text;
    const internal::PrefixIndex::Found beginning = registry.findBeginning(text);
    EXPECT_EQ(beginning.isOnly, longer.size() == 1) << text;
    ASSERT_EQ(beginning.first != internal::KeptTexts::none, !longer.empty()) << text;
    EXPECT_TRUE(longer.empty() || registry.names().forms()[beginning.first] == longer[0]) << text;
}

// Equal hashes would change no answer, and make every look-up walk.
TEST(TextHash, TellsTextsApartThatDifferInOneByte) {
    for (std::size_t size = 1; size <= 20; ++size) {
        const std::string text(size, 'x');
        std::set<std::uint32_t> hashes{internal::TextHash::of(text)};
        for (std::size_t at = 0; at < size; ++at) {
            for (const char other : {'a', 'X', '\xFF'}) {
                std::string changed = text;
                changed[at] = other;
                hashes.insert(internal::TextHash::of(changed));
            }
        }
        EXPECT_EQ(hashes.size(), 1 + 3 * size) << size;
    }
}

TEST(Registry, FindsWhatALinearSearchFinds) {
    std::istringstream words("a ab abc b n no no- no-a no-b nob no-no-a");
    std::vector<std::string> pool{std::istream_iterator<std::string>(words), {}};
    for (const char* const end : {"", "n", "x"}) {
        pool.push_back(std::string(64, 'n') + end);
    }
    pool.emplace_back();
    std::mt19937 dice(42);
    const auto drawn = [&] { return pool[dice() % pool.size()]; };
    for (int round = 0; round < 400 && !testing::Test::HasFailure(); ++round) {
        RegisteredOptionStorage registry;
        IOption* last = nullptr;
        for (int step = 0; step < 8; ++step) {
            const bool isAction = dice() % 3 == 0;
            const das_variant_type_t type = dice() % 2 == 0 ? vtBool : vtString;
            if (last != nullptr && dice() % 3 == 0) {
                last->synonym(drawn().c_str());
            } else {
                const std::string names = dice() % 2 == 0 ? drawn() : drawn() + "," + drawn();
                last = &registry.option(names.c_str(), nullptr, "", isAction, type, "");
            }
            if (dice() % 4 != 0) {  // sometimes several are new at once
                for (const std::string& text : pool) {
                    expectSlowAnswers(registry, text);
                }
            }
        }
    }
}

}  // namespace
}  // namespace zarn_3_3
