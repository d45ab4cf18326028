#include "modern/pages.h"

#include <algorithm>
#include <string_view>

#include "text/filled.h"
#include "text/paragraph.h"
#include "zarn/typed/declaration.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

constexpr const char* helpName = "help";
constexpr const char* versionName = "version";
constexpr std::size_t columnWidth = 30;
constexpr std::size_t descriptionWidth = 50;

bool isEmpty(const char* text) { return text == nullptr || *text == '\0'; }

void appendEscaped(std::string& text, unsigned char byte) {
    constexpr char digits[] = "0123456789abcdef";
    text.append("\\x");
    text += digits[byte / 16];
    text += digits[byte % 16];
}

// "FILE", "[FILE]", "FILE ...", "[FILE ...]"
std::string usageOf(const ItemRecord& item, bool isLast) {
    const std::string name = item.called() + (isLast && item.takesMany() ? " ..." : "");
    return item.isRequired ? name : filled("[{}]", {name});
}

// `action`: as it is typed, or empty.
std::string usageLine(const Vocabulary& vocabulary,
                      const std::string& tool,
                      const std::string& action) {
    std::string line = filled("Usage: {}", {tool});
    if (!action.empty()) {
        line.append(" ").append(action);
    } else if (vocabulary.hasRole(Role::action)) {
        line.append(" ACTION");
    }
    if (vocabulary.hasRole(Role::option)) {
        line.append(" [option ...]");
    }
    for (const ItemRecord* const item : vocabulary.positionals()) {
        line.append(" ").append(usageOf(*item, item == vocabulary.positionals().back()));
    }
    return line.append("\n");
}

std::string wholePage(Vocabulary& vocabulary, const std::string& tool) {
    std::string page = usageLine(vocabulary, tool, "");
    if (!isEmpty(vocabulary.tool().summary)) {
        page.append(vocabulary.tool().summary).append("\n");
    }
    page.append("\n");
    for (const ItemRecord* const item : vocabulary.positionals()) {
        appendParagraph(page, item->description, item->called(), columnWidth, descriptionWidth);
    }
    page.append(vocabulary.positionals().empty() ? "" : "\n");
    page.append(vocabulary.plain().getDescription(false));
    if (vocabulary.hasRole(Role::action)) {
        page.append("\n").append(vocabulary.plain().getGlobalModifiersDescription(false));
    }
    return page;
}

std::string actionPage(Vocabulary& vocabulary, const std::string& tool, const ItemRecord& action) {
    const char* const modifiers =
        vocabulary.plain().getActionModifiersDescription(action.primaryName().c_str(), false);
    return filled("{}{}\n\n{}",
                  {usageLine(vocabulary, tool, action.called()), action.description, modifiers});
}

Answer answerFor(const ItemRecord& item,
                 Vocabulary& vocabulary,
                 const std::string& tool,
                 const std::string& topic) {
    if (item.primaryName() == versionName) {
        return {filled("{} {}\n", {tool, vocabulary.tool().version}), "", exitAnswered};
    }
    if (topic.empty() || vocabulary.isName(topic)) {
        return {pageOf(vocabulary, tool, Page::topic, topic.c_str()), "", exitAnswered};
    }
    const std::string quoted = visible(topic);
    return {"",
            filled("{}: {}", {tool, vocabulary.plain().getDescription(quoted.c_str(), false)}),
            exitUsage};
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
        const char* const names = vocabulary.isName("h") ? helpName : "help,h";
        auto item = option(names, "Show this text.").alone();
        vocabulary.declare("", item.take()).isAnswered = true;
    }
    if (!isEmpty(vocabulary.tool().version) && !vocabulary.isName(versionName)) {
        auto item = option(versionName, "Show the version.").alone();
        vocabulary.declare("", item.take()).isAnswered = true;
    }
}

std::optional<Answer> findAnswer(Vocabulary& vocabulary,
                                 const std::string& tool,
                                 CommandLine line) {
    if (line.argv == nullptr || !mayAsk(line)) {
        return std::nullopt;
    }
    for (OptionWalk walk(vocabulary, line); !walk.isAtEnd(); walk.next(walk.argument())) {
        const std::string argument = walk.argument();
        const CutArgument cut = cutArgument(argument);
        const ItemRecord* const item = cut.isOption ? vocabulary.find(cut.name) : nullptr;
        if (item != nullptr && item->isAnswered) {
            return answerFor(
                *item, vocabulary, tool, topicBehind(argument, vocabulary, line, walk.index()));
        }
    }
    return std::nullopt;
}

std::optional<Answer> findAnswer(Vocabulary& vocabulary,
                                 const std::string& tool,
                                 const ParseResult& result) {
    for (const auto& item : vocabulary.items()) {
        if (item->isAnswered && result.find(item->primaryName()) != nullptr) {
            return answerFor(*item, vocabulary, tool, "");
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

std::string pageOf(Vocabulary& vocabulary, const std::string& tool, Page page, const char* topic) {
    if (page == Page::whole || isEmpty(topic)) {
        return wholePage(vocabulary, tool);
    }
    const ItemRecord* const item = vocabulary.find(topic);
    return item != nullptr && item->role == Role::action
               ? actionPage(vocabulary, tool, *item)
               : vocabulary.plain().getDescription(topic, false);
}

std::string visible(const std::string& text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(text[i + 1]);        // the NUL at the end
        const bool isWide = byte == 0xc2 && next >= 0x80 && next < 0xa0;  // U+0080 to U+009F
        if (isWide || byte < 0x20 || byte == 0x7f) {
            appendEscaped(shown, byte);
            if (isWide) {
                appendEscaped(shown, next);
                ++i;
            }
        } else {
            shown += text[i];
        }
    }
    return shown;
}

}  // namespace zarn_3_3::internal
