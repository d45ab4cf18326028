// Memory runs out somewhere in a parse, or in a help text. What is asked then has its right answer
// or says so, and the same parser gives the right answer when the memory is back.

#include <iostream>
#include <string>
#include <vector>

#include "arguments.h"
#include "bytes.h"
#include "check.h"
#include "listener.h"
#include "memory_files.h"
#include "observation.h"
#include "platform/assertion.h"
#include "quiet_console.h"
#include "recognizers/argument_parser.h"
#include "support/failing_new.h"
#include "tool.h"
#include "vocabulary.h"

// What is reported is of no interest here, and must take no memory.
void TROV_2_18::debugAssertionFailed(const char* /*text*/) noexcept {}

namespace fuzzing {
namespace {

using namespace zarn_3_3;

struct Fault {
    long allocation;  // that fails, counted from 1; 0: none
    bool isLasting;
};

struct Outcome {
    int code;
    std::string error;  // when the memory is back
    std::string help;
    std::string seen;
};

class World {
public:
    explicit World(Bytes bytes) : listener(Deed::none, 0) {
        require(createParser(&parser, static_cast<int>(bytes.below(64))) == resultOk, "a parser");
        if (bytes.flag()) {
            parser->addHandler(&listener);
        }
        helpAsked = bytes.below(8);
        names = declareTool(bytes, *parser);
        setFiles(filesFrom(bytes));
        const std::vector<std::string> arguments = argumentsFrom(bytes);
        text = linesOf(arguments);
        backwards = linesOf({arguments.rbegin(), arguments.rend()});
        startNewResult();
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;
    ~World() {
        result->destroy();
        parser->destroy();
    }

    void startNewResult() {
        if (result != nullptr) {
            result->destroy();
        }
        require(parser->createResult(&result) == resultOk, "a result");
    }

    Outcome parse(const Fault& fault) {
        IArgumentParser::m_idx = 1;
        memory.isLasting = fault.isLasting;
        memory.left = fault.allocation;
        // A text does not bring the defaults along.
        int code = parser->parseArgsVector(0, nullptr, result);
        if (code == resultOk) {
            code = parser->parseStream(text.c_str(), result);
        }
        const long left = memory.left;
        memory.left = 0;
        const std::string error = parser->getErrorDesc();
        memory.left = left;
        const char* const help = readHelp();
        memory.left = 0;
        return {code, code == resultOk ? "" : error, help, stored(*result, names)};
    }

    // The same result takes the arguments once more, the last one first.
    void goOn() {
        constexpr int numbersOfOneParse = 1 << 20;  // more than one draws
        IArgumentParser::m_idx = numbersOfOneParse;
        parser->parseStream(backwards.c_str(), result);
        stored(*result, names);
    }

private:
    const char* readHelp() {
        const bool hidden = helpAsked % 2 != 0;
        const char* const topic = names.empty() ? "" : names.front().c_str();
        switch (helpAsked / 2) {
            case 0:
                return parser->getDescription(hidden);
            case 1:
                return parser->getDescription(topic, hidden);
            case 2:
                return parser->getActionModifiersDescription(topic, hidden);
            default:
                return parser->getGlobalModifiersDescription(hidden);
        }
    }

    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    Listener listener;
    unsigned helpAsked = 0;
    std::vector<std::string> names;
    std::string text;
    std::string backwards;
};

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

void checkDisturbed(const Outcome& found, const Outcome& right) {
    if (found.code == right.code && found.error == right.error) {
        requireEqual(found.seen, right.seen, "what is stored when all goes well");
    } else {
        require(found.code == resultException, "the code for a lack of memory");
        require(found.error.empty() || found.error == "std::bad_alloc", "its text");
    }
    if (found.help != right.help) {
        require(found.help.empty() || endsWith(found.help, "Unknown error handled."), "help");
    }
}

void checkEqual(const Outcome& found, const Outcome& right) {
    require(found.code == right.code, "the code when the memory is back");
    requireEqual(found.error, right.error, "the error when the memory is back");
    requireEqual(found.help, right.help, "the help when the memory is back");
    requireEqual(found.seen, right.seen, "what is stored when the memory is back");
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    const QuietConsole console;
    const bool isLasting = bytes.flag();
    const long allocation = static_cast<long>(bytes.below(4)) * 256 + bytes.below(256);

    const Outcome right = World(bytes).parse({0, false});
    World disturbed(bytes);
    checkDisturbed(disturbed.parse({allocation, isLasting}), right);
    disturbed.goOn();
    disturbed.startNewResult();
    checkEqual(disturbed.parse({0, false}), right);
    std::cout.clear();
    std::cerr.clear();
    return 0;
}
