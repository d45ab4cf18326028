// All short texts over the bytes that the recognisers look for, sequences cut off in the middle
// included. Each stands in a block of exactly its size, so that the sanitizers see any byte that is
// read behind it.

#include <climits>
#include <cstring>
#include <memory>
#include <vector>

#include "hostile.h"
#include "support/expectation.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;

constexpr const char* symbols[] = {"-", "=", " ", ",", "a", "\xE2", "\x80", "\x94", "\xFF"};
constexpr std::size_t longest = 4;

class ExactText {
public:
    explicit ExactText(const std::string& text) : block(new char[text.size() + 1]) {
        std::memcpy(block.get(), text.c_str(), text.size() + 1);
    }
    const char* get() const { return block.get(); }

private:
    std::unique_ptr<char[]> block;
};

std::vector<std::string> allTexts() {
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; texts[i].size() < longest; ++i) {
        for (const char* const symbol : symbols) {
            texts.push_back(texts[i] + symbol);
        }
    }
    return texts;
}

class Client {
public:
    Client() {
        tool.option("a", vtNull);
        tool.option("path").tokenize(0);
        tool.option("file").positional();
    }

    int parse(const char* first, const char* second) {
        tool.startNewResult();
        const char* const line[] = {"tool", first, second, "-a"};
        return tool->parseArgsVector(4, line, tool.result);
    }

    Tool tool{flagUnknownIsError | flagPositionalWithoutDash};
};

// Whatever it is, it is understood or refused, and named when it is refused.
void passAlone(Client& client, const std::string& text) {
    const ExactText argument(text);
    const int code = client.parse(argument.get(), "-a");
    expect(code == resultOk || code == resultRuleBroken, "code " + std::to_string(code));
    expect(code == resultOk || !client.tool.error().empty(), "an error has a text");
    const bool isEnd = text == "--";
    expect(code != resultOk || client.tool.result->present("a", 0, INT_MAX) != isEnd,
           "what stands behind it");
}

// As the value in the next argument it is stored as it is, unless it could be an option.
void passAsValue(Client& client, const std::string& text) {
    const ExactText argument(text);
    const bool isValue = !text.empty() && text[0] != '-';
    expectEqual(client.parse("--path", argument.get()),
                isValue ? resultOk : resultRuleBroken,
                "code of a value");
    expectEqual(client.tool.values("path"), isValue ? text : "", "value");
}

// Longer than a string keeps in itself, where it has a block of its own in the library as well.
void passBehindValue(Client& client, const std::string& text) {
    const std::string value = std::string(40, 'x') + text;
    const ExactText argument("--path=" + value);
    expectEqual(client.parse(argument.get(), "-a"), resultOk, "code of a long value");
    expectEqual(client.tool.values("path"), value, "long value");
}

void passAsPlain(Client& client, const std::string& text) {
    const ExactText argument(text);
    expectEqual(client.parse("--", argument.get()), resultOk, "code of a plain argument");
    const char* kept = nullptr;
    client.tool.result->getFirstArgument(&kept);
    expect(kept != nullptr && text == kept, "plain argument");
}

}  // namespace

long passBrokenArguments() {
    const std::vector<std::string> texts = allTexts();
    Client client;
    for (const std::string& text : texts) {
        const checking::Place place("argument '" + text + "'");
        passAlone(client, text);
        passAsValue(client, text);
        passBehindValue(client, text);
        passAsPlain(client, text);
    }
    return static_cast<long>(texts.size() * 4);
}

}  // namespace zarn_3_3::hostile
