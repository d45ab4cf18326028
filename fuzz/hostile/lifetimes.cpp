// Parsers and results that end in any order, and texts that are kept for as long as they are valid.

#include <algorithm>
#include <array>
#include <climits>
#include <utility>
#include <vector>

#include "hostile.h"
#include "support/expectation.h"
#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;

constexpr int many = 10000;

// Two parsers and two results, of which each was filled by both.
class Objects {
public:
    Objects() {
        for (std::size_t i = 0; i < parsers.size(); ++i) {
            createParser(&parsers[i], 0);
            parsers[i]
                ->option("level", "A text", vtString, "")
                .synonym(i == 0 ? "first" : "second");
            parsers[i]->createResult(&results[i]);
        }
        for (IParser* const parser : parsers) {
            for (IParseResult* const result : results) {
                parser->parseStream("--level=a-value-beyond-the-small-buffer\n--\nplain", result);
            }
        }
    }

    // 0 and 1 are the parsers, 2 and 3 the results.
    void destroy(int object) {
        const auto index = static_cast<std::size_t>(object % 2);
        if (object < 2) {
            std::exchange(parsers[index], nullptr)->destroy();
        } else {
            std::exchange(results[index], nullptr)->destroy();
        }
    }

    void use() {
        for (IParser* const parser : parsers) {
            if (parser != nullptr) {
                expect(*parser->getDescription("level", false) == '-', "help");
            }
        }
        for (IParseResult* const result : results) {
            if (result != nullptr) {
                const Value value = getLastValue(result, "level", 0, INT_MAX);
                expectEqual(value.text, "a-value-beyond-the-small-buffer", "value");
                expect(result->present("first", 0, INT_MAX), "synonym");
            }
        }
    }

private:
    std::array<IParser*, 2> parsers{};
    std::array<IParseResult*, 2> results{};
};

// Texts with what they were when they were handed out.
class KeptTexts {
public:
    void add(const char* text) { texts.emplace_back(text, text); }

    void expectUnchanged() const {
        for (const auto& [text, asItWas] : texts) {
            expectEqual(text, asItWas, "text that was handed out");
        }
    }
    long size() const { return static_cast<long>(texts.size()); }

private:
    std::vector<std::pair<const char*, std::string>> texts;
};

// Equal questions give equal answers, at one address and in no further memory.
template <typename Ask>
void expectNoGrowth(const char* name, Ask ask) {
    const auto first = ask();
    const std::size_t blocks = memory.liveBlocks();
    for (int i = 0; i < many; ++i) {
        if (!expect(ask() == first, std::string(name) + " moves")) {
            return;
        }
    }
    const std::size_t taken = memory.liveBlocks() - blocks;
    expectEqual(static_cast<long>(taken), 0, std::string(name) + " grows");
}

// What is chained onto it must not pile up.
IOption& refuseDeclaration(IParser& parser, int number) {
    IOption& item = parser.option("name,a-name-beyond-the-small-buffer", "", vtS32, "");
    return item.allowDeprecatedValue(number, 0).tag(std::to_string(number).c_str());
}

}  // namespace

long destroyInAnyOrder() {
    std::array<int, 4> order{0, 1, 2, 3};
    long orders = 0;
    do {
        Objects objects;
        for (const int object : order) {
            objects.use();
            objects.destroy(object);
        }
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    return orders;
}

long keepManyTexts() {
    Tool tool(flagUnknownIsError);
    KeptTexts ofResult;
    KeptTexts ofParser;
    tool.option("name");
    for (int i = 0; i < many; ++i) {
        const std::string number = std::to_string(i);
        tool.parse({"--name=" + number,
                    "--",
                    "plain " + number,
                    std::string(static_cast<std::size_t>(i % 300), 'x')});
        ofResult.add(getLastValue(tool.result, "name", 0, INT_MAX).text);
        tool.parse({"--unknown" + number});
        ofParser.add(tool->getErrorDesc());
        ofParser.add(tool->getDescription(number.c_str(), i % 2 == 0));
    }
    const char* text = nullptr;
    for (int status = tool.result->getFirstArgument(&text); status == statusFound;
         status = tool.result->getNextArgument(&text)) {
        ofResult.add(text);
    }
    expectNoGrowth("error text", [&] { return tool->getErrorDesc(); });
    expectNoGrowth("help", [&] { return tool->getDescription(false); });
    expectNoGrowth("help of an item", [&] { return tool->getDescription("name", false); });
    int number = 0;
    expectNoGrowth("refused declaration",
                   [&] { return &refuseDeclaration(*tool.parser, ++number); });
    expectNoGrowth("value", [&] { return tool.result->get("name", 0, INT_MAX).text; });
    ofParser.expectUnchanged();
    tool.parser->destroy();
    ofResult.expectUnchanged();
    createParser(&tool.parser, 0);
    return ofResult.size() + ofParser.size();
}

}  // namespace zarn_3_3::hostile
