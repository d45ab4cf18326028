// Names typed in full, abbreviated and negated while a vocabulary grows: each stands for what a
// plain search through all of them says.

#include <algorithm>
#include <string>
#include <vector>

#include "bytes.h"
#include "check.h"
#include "plain_names.h"
#include "recognizers/argument_parser.h"
#include "vocabulary.h"
#include "zarn/zarn.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

// Records which item an argument was taken for, and a boolean's value.
class Recorder final : public EventHandler {
public:
    bool onOptionParse(const char* name) override {
        taken += std::string("<") + name + ">";
        return true;
    }
    bool onValueParse(const char*, const Value& value) override {
        taken += value.text;
        return true;
    }

    std::string taken;
};

class Vocabulary {
public:
    Vocabulary() {
        require(createParser(&parser, flagUnknownIsError) == resultOk, "a parser");
        parser->addHandler(&recorder);
    }
    Vocabulary(const Vocabulary&) = delete;
    Vocabulary& operator=(const Vocabulary&) = delete;
    ~Vocabulary() { parser->destroy(); }

    // Refused for a bad list of names, or for one that is taken.
    void declare(Bytes& bytes) {
        const std::string list = nameListFrom(bytes);
        const std::string section = sectionFrom(bytes);
        PlainItem item{{}, bytes.flag(), bytes.flag(), section.substr(0, section.find(':'))};
        if (!list.empty()) {
            appendNames(list, item.names);
        }
        const das_variant_type_t type = item.isBoolean ? vtBool : vtNull;
        last = &(item.isAction ? parser->action(list.c_str(), "", type, section.c_str())
                               : parser->option(list.c_str(), "", type, section.c_str()));
        isLastRefused =
            item.names.size() > 3 || (item.names.size() == 3 && item.names[2].size() > 2);
        for (const Form& form : formsOf(items)) {
            isLastRefused =
                isLastRefused || std::count(item.names.begin(), item.names.end(), form.text) != 0;
        }
        if (!isLastRefused) {
            items.push_back(item);
        }
    }

    void addSynonym(const std::string& name) {
        if (last != nullptr) {
            last->synonym(name.c_str());
        }
        if (last != nullptr && !isLastRefused) {
            items.back().names.push_back(name);
        }
    }

    void checkDeclared(const std::string& name, bool isAction, const std::string& sectionKey) {
        const bool isExpected = std::any_of(items.begin(), items.end(), [&](const auto& item) {
            return item.isAction == isAction && item.sectionKey == sectionKey &&
                   std::count(item.names.begin(), item.names.end(), name) != 0;
        });
        require(parser->isOptionDeclared(name.c_str(), isAction, sectionKey.c_str()) == isExpected,
                "whether a name is declared in a section");
    }

    void checkTyped(const std::string& text) {
        const std::vector<Form> meant = meantBy(formsOf(items), text);
        const bool isOne = meant.size() == 1;
        recorder.taken.clear();
        IParseResult* result = nullptr;
        require(parser->createResult(&result) == resultOk, "a result");
        const int code = parser->parseStream(("--" + text).c_str(), result);
        result->destroy();
        requireEqual(
            recorder.taken, isOne ? takenFor(meant.front()) : "", "what a name stands for");
        if (!isOne) {
            require(code == resultRuleBroken, "no name, or too many");
            requireEqual(parser->getErrorDesc(), refusal(meant, text), "why a name is refused");
        }
    }

private:
    IParser* parser = nullptr;
    Recorder recorder;
    IOption* last = nullptr;
    bool isLastRefused = true;
    std::vector<PlainItem> items;
};

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    IArgumentParser::m_idx = 1;
    Bytes bytes(data, size);
    Vocabulary vocabulary;
    for (int steps = 0; steps < 64 && !bytes.atEnd(); ++steps) {
        const unsigned operation = bytes.below(4);
        if (operation == 0) {
            vocabulary.declare(bytes);
            continue;
        }
        const std::string text = bytes.text();
        if (operation == 1) {
            vocabulary.addSynonym(text);
        } else if (operation == 2) {
            const std::string section = sectionFrom(bytes);
            vocabulary.checkDeclared(text, bytes.flag(), section.substr(0, section.find(':')));
        } else if (canBeName(text)) {
            vocabulary.checkTyped(text);
        }
    }
    return 0;
}
