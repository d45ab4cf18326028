#include "completion/protocol.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "completion/bash_word.h"
#include "completion/candidates.h"

namespace zarn_3_3::internal {
namespace {

enum class Shell { bash, fish, zsh };

struct Request {
    Shell shell;
    std::size_t index;
    std::string_view breaks;
};

// Cuts off what stands in front of the next ':'; nothing when there is none.
std::optional<std::string_view> cutField(std::string_view& rest) {
    const std::size_t end = rest.find(':');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view field = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    return field;
}

std::optional<Shell> shellNamed(std::string_view name) {
    if (name == "bash") {
        return Shell::bash;
    }
    if (name == "fish") {
        return Shell::fish;
    }
    return name == "zsh" ? std::optional<Shell>(Shell::zsh) : std::nullopt;
}

// The number of one of so many words.
std::optional<std::size_t> indexIn(std::size_t count, std::string_view text) {
    std::size_t index = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), index);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && index > 0 && index <= count ? std::optional<std::size_t>(index)
                                                   : std::nullopt;
}

std::optional<Request> requestIn(std::string_view question, std::size_t wordCount) {
    // Of another protocol nothing is known, not even what its fields are.
    if (cutField(question) != "complete" || cutField(question) != "1") {
        return std::nullopt;
    }
    const std::optional<std::string_view> shellName = cutField(question);
    const std::optional<std::string_view> indexText = cutField(question);
    if (!shellName || !indexText) {
        return std::nullopt;
    }
    const std::optional<Shell> shell = shellNamed(*shellName);
    const std::optional<std::size_t> index = indexIn(wordCount, *indexText);
    return shell && index ? std::optional<Request>({*shell, *index, question}) : std::nullopt;
}

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

// The lines of an answer are not to be broken, nor the terminal told anything.
bool hasControl(std::string_view text) { return std::any_of(text.begin(), text.end(), isControl); }

void appendHelp(std::string& line, std::string_view help) {
    // Shells give a candidate one line of the terminal: what goes beyond would not be seen.
    constexpr std::size_t longest = 200;
    help = help.substr(0, help.find('\n'));
    if (help.size() > longest) {
        // A character that goes beyond is left out whole.
        const auto isInside = [](char c) { return (static_cast<unsigned char>(c) & 0xc0) == 0x80; };
        std::size_t end = longest;
        while (end > 0 && isInside(help[end])) {
            --end;
        }
        help = help.substr(0, end);
    }
    std::replace_copy_if(help.begin(), help.end(), std::back_inserter(line), isControl, ' ');
}

std::string headOf(const Completion& completion) {
    return completion.takesFiles ? "zarn 1 files\n" : "zarn 1\n";
}

std::string answerBash(const std::vector<BashWord>& words, const BasicParser& parser) {
    std::vector<std::string> before;
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        before.push_back(words[i].text());
    }
    const BashWord& word = words.back();
    const Completion completion = completionsOf(word.text(), before, parser);
    std::string answer = headOf(completion);
    for (const Candidate& candidate : completion.candidates) {
        const std::optional<std::string> insertion = word.insertionFor(candidate.word);
        if (insertion && !hasControl(candidate.word)) {
            // Readline inserts the line as it stands, so that there is no place for help.
            answer.append(*insertion).append("\n");
        }
    }
    return answer;
}

std::string answerOther(const std::vector<std::string_view>& words, const BasicParser& parser) {
    const std::vector<std::string> before(words.begin(), words.end() - 1);
    const Completion completion = completionsOf(std::string(words.back()), before, parser);
    std::string answer = headOf(completion);
    for (const Candidate& candidate : completion.candidates) {
        if (!hasControl(candidate.word)) {
            answer.append(candidate.word).append("\t");
            appendHelp(answer, candidate.help);
            answer.append("\n");
        }
    }
    return answer;
}

}  // namespace

std::string answerCompletion(std::string_view question,
                             const std::vector<std::string_view>& words,
                             const BasicParser& parser) {
    const std::optional<Request> request = requestIn(question, words.size());
    if (!request) {
        return "";
    }
    // What stands behind the cursor has no say: its user has come back to this word.
    const auto end = words.begin() + static_cast<std::ptrdiff_t>(request->index);
    if (request->shell != Shell::bash) {
        return answerOther({words.begin(), end}, parser);
    }
    std::vector<BashWord> typed;
    for (auto word = words.begin(); word != end; ++word) {
        typed.emplace_back(*word, request->breaks);
    }
    return answerBash(typed, parser);
}

}  // namespace zarn_3_3::internal
