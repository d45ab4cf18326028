#include "modern/pages.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <string_view>
#include <utility>

#include "help/help_topics.h"
#include "text/filled.h"
#include "text/visible.h"
#include "vocabulary/help_in_style.h"
#include "zarn/typed/declaration.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

constexpr const char* helpName = "help";
constexpr const char* versionName = "version";

bool isEmpty(const char* text) { return text == nullptr || *text == '\0'; }

// 0 for a text that is no number.
std::uint32_t numberFrom(const char* text) {
    const std::string_view digits = text == nullptr ? "" : text;
    std::uint32_t number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return read.ec == std::errc() && read.ptr == digits.data() + digits.size() ? number : 0;
}

// What there is to say of a topic that is none.
std::string plainHelp(Vocabulary& vocabulary, const char* topic) {
    HelpText help = HelpTopics(vocabulary.plain().vocabulary()).topic(topic, false);
    // The plain interface hands out what it could still write.
    if (help.isFailure) {
        throw std::bad_alloc();
    }
    return std::move(help.text);
}

Answer answerFor(const ItemRecord& item,
                 Vocabulary& vocabulary,
                 const Teller& teller,
                 const std::string& topic) {
    const std::string& tool = teller.tool;
    if (item.primaryName() == versionName) {
        return {filled("{} {}\n", {tool, vocabulary.tool().version}), "", exitAnswered};
    }
    // Asked for the whole help or for what there is; the rest is an error of the user.
    if (topic.empty() || vocabulary.isName(topic)) {
        HelpStyle style;
        teller.fit(style);
        style.topic = topic.c_str();
        return {pageOf(vocabulary, tool, style), "", exitAnswered};
    }
    // It goes to a terminal.
    const std::string quoted = visible(topic);
    return {"", filled("{}: {}", {tool, plainHelp(vocabulary, quoted.c_str())}), exitUsage};
}

// What stands behind "--help", without dashes: attached, or as the next argument when that is a
// name, or an action as it is typed. Anything else there is what help is given in spite of.
std::string topicBehind(const std::string& argument,
                        const Vocabulary& vocabulary,
                        CommandLine line,
                        int index) {
    std::string topic(cutArgument(argument).value);
    const char* const next = index + 1 < line.argc ? line.argv[index + 1] : nullptr;
    if (topic.empty() && next != nullptr) {
        const std::string typed = next;
        const ItemRecord* const item = vocabulary.find(cutArgument(typed).name);
        const bool isAction = item != nullptr && item->role == Role::action;
        topic = isAction || vocabulary.isName(typed) ? typed : "";
    }
    return topic.substr(std::min(topic.find_first_not_of('-'), topic.size()));
}

// Whether an argument could be "--help" or "--version": most command lines hold none.
bool mayAsk(CommandLine line) {
    for (int i = 1; i < line.argc && line.argv[i] != nullptr; ++i) {
        const std::string_view argument = line.argv[i];
        const std::size_t name = argument.find_first_not_of('-');
        const char first = name < argument.size() ? argument[name] : '\0';
        // The other dashes begin with a byte beyond ASCII.
        const bool isOtherDash = static_cast<unsigned char>(first) >= 0x80;
        if (isOtherDash || (name > 0 && (first == *helpName || first == *versionName))) {
            return true;
        }
    }
    return false;
}

}  // namespace

void declareAnswers(Vocabulary& vocabulary) {
    if (!vocabulary.isName(helpName)) {
        // A tool that has "h" for its host or its height keeps it.
        const char* const names = vocabulary.isName("h") ? helpName : "help,h";
        auto item = option(names, "Show this text.").alone();
        vocabulary.declare("", item.take()).isAnswered = true;
    }
    if (!isEmpty(vocabulary.tool().version) && !vocabulary.isName(versionName)) {
        auto item = option(versionName, "Show the version.").alone();
        vocabulary.declare("", item.take()).isAnswered = true;
    }
}

std::optional<Answer> findAnswer(Vocabulary& vocabulary, const Teller& teller, CommandLine line) {
    // The walk resolves names, which would show in the start of every tool.
    if (line.argv == nullptr || !mayAsk(line)) {
        return std::nullopt;
    }
    for (OptionWalk walk(vocabulary, line); !walk.isAtEnd(); walk.next(walk.argument())) {
        const std::string argument = walk.argument();
        const CutArgument cut = cutArgument(argument);
        // Whole names only: what an abbreviation means is known to the parse.
        const ItemRecord* const item = cut.isOption ? vocabulary.find(cut.name) : nullptr;
        if (item != nullptr && item->isAnswered) {
            return answerFor(
                *item, vocabulary, teller, topicBehind(argument, vocabulary, line, walk.index()));
        }
    }
    return std::nullopt;
}

std::optional<Answer> findAnswer(Vocabulary& vocabulary,
                                 const Teller& teller,
                                 const ParseResult& result) {
    for (const auto& item : vocabulary.items()) {
        if (item->isAnswered && result.find(item->primaryName()) != nullptr) {
            return answerFor(*item, vocabulary, teller, "");
        }
    }
    return std::nullopt;
}

std::string nameOfTool(const Vocabulary& vocabulary, CommandLine line) {
    if (!isEmpty(vocabulary.tool().name)) {
        return vocabulary.tool().name;
    }
    if (line.argc < 1 || line.argv == nullptr || line.argv[0] == nullptr) {
        return vocabulary.calledAs();
    }
    const std::string path = line.argv[0];
    return visible(path.substr(path.rfind('/') + 1));
}

std::string pageOf(Vocabulary& vocabulary, const std::string& tool, HelpStyle style) {
    // An empty topic is what "--help" without one has.
    style.topic = isEmpty(style.topic) ? nullptr : style.topic;
    const Tool& about = vocabulary.tool();
    const ToolInfo info{sizeof info, tool.c_str(), about.version, about.summary};
    const auto help = helpInStyle(style, vocabulary.plain(), ToolTexts(info));
    return help ? *help : plainHelp(vocabulary, style.topic);
}

void fitStyle(HelpStyle& style, const TerminalFacts& facts) noexcept {
    constexpr std::uint32_t least = 20;
    constexpr std::uint32_t usual = 80;
    constexpr std::uint32_t most = 120;
    const std::uint32_t wanted = numberFrom(facts.columns);
    const std::uint32_t shown = facts.width != 0 ? facts.width : usual;
    // A wider line is hard to read, however wide the terminal; a COLUMNS of 3 is a mistake.
    style.width = std::clamp(wanted >= least ? wanted : shown, least, most);
    const bool isDumb = facts.kind != nullptr && std::string_view(facts.kind) == "dumb";
    if (facts.isTerminal && !isDumb && isEmpty(facts.noColor)) {
        style.flags |= helpEmphasized;
    }
}

}  // namespace zarn_3_3::internal
