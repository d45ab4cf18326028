// The door for who asks a tool on its command line.

#include <string>
#include <string_view>
#include <vector>

#include "completion/protocol.h"
#include "parser/ask_parser.h"
#include "vocabulary/checks.h"
#include "vocabulary/description.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// On the command line and not in the environment: a tool that does not answer refuses the unknown
// option, instead of working on a line that its user has not finished.
constexpr std::string_view questionOption = "--zarn-answer";

struct Question {
    std::string_view text;
    std::vector<std::string_view> words;
};

// Whether the line is "TOOL --zarn-answer QUESTION [-- WORD...]": in full and in front alone, since
// it may be a value of the tool elsewhere.
bool isQuestion(int argc, const char* const* argv, Question& question) {
    constexpr int firstWord = 4;
    if (argc < 3 || argv[1] == nullptr || argv[1] != questionOption || argv[2] == nullptr) {
        return false;
    }
    question.text = argv[2];
    if (argc < firstWord || argv[3] == nullptr) {
        return true;
    }
    for (int i = firstWord; i < argc && argv[i] != nullptr; ++i) {
        question.words.emplace_back(argv[i]);
    }
    // Anything else is no question, and the parse refuses the line.
    return std::string_view(argv[3]) == "--";
}

// "check" or "check:IGNORED"
std::string findingsFor(std::string_view question, const BasicParser& parser) {
    const std::size_t colon = question.find(':');
    Findings findings(colon == std::string_view::npos ? "" : question.substr(colon + 1));
    checkVocabulary(parser, findings);
    return findings.text();
}

// An empty text for what this library does not know.
std::string answerTo(const Question& question, const BasicParser& parser, const ToolTexts& tool) {
    const std::string_view kind = question.text.substr(0, question.text.find(':'));
    if (question.text == "describe") {
        return descriptionOf(parser, tool);
    }
    if (kind == "check") {
        return findingsFor(question.text, parser);
    }
    // Also what nobody here knows: it has no answer there either.
    return answerCompletion(question.text, question.words, parser);
}

}  // namespace

int answerQuestion(
    IParser* parser, const ToolInfo* tool, int argc, const char* const* argv, const char** answer) {
    // Refused as a null parser is.
    if (tool == nullptr || (argv == nullptr && argc > 0)) {
        parser = nullptr;
    }
    return askParser(parser, answer, [&](BasicParser& asked) -> int {
        Question question;
        if (!isQuestion(argc, argv, question)) {
            return ordinaryLine;
        }
        *answer = asked.keep(answerTo(question, asked, ToolTexts(*tool)));
        return questionAnswered;
    });
}

int nameValue(IParser* parser, const char* item, const char* valueName) {
    if (item == nullptr) {
        parser = nullptr;
    }
    return askParser(parser, [&](BasicParser& asked) -> int {
        std::size_t index = 0;
        if (findOption(item, index, asked.vocabulary()) != resultSuccess) {
            return toolingFailed;
        }
        asked.vocabulary().nameValue(index, valueName == nullptr ? "" : valueName);
        return toolingDone;
    });
}

}  // namespace zarn_3_3
