// The deeds of scenarios that make parsers and declare vocabularies.

#include <algorithm>
#include <set>
#include <utility>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

// No operation of it may be called.
class ForeignResult final : public IParseResult {
public:
    void destroy() override { throw ForeignException(); }
    bool present(const char*, int, int) override { throw ForeignException(); }
    Value get(const char*, int, int) override { throw ForeignException(); }
    Value next(const char*) override { throw ForeignException(); }
    int nextPosition() override { throw ForeignException(); }
    int getFirstArgument(const char**) override { throw ForeignException(); }
    int getNextArgument(const char**) override { throw ForeignException(); }
};

int flagOf(const std::string& word) {
    static const std::map<std::string, int> flags{
        {"strict", flagUnknownIsError            },
        {"behind", flagPositionalBehindTerminator},
        {"noDash", flagPositionalWithoutDash     },
        {"rest",   flagPositionalTakesRest       },
        {"whole",  flagValuesStayWhole           },
    };
    const auto found = flags.find(word);
    return found != flags.end() ? found->second : static_cast<int>(numberOf(word));
}

void makeResult(Stage& stage, const Words& words) {
    const std::string& name = wordOf(words, 0);
    stage.destroyResult(name);
    IParseResult* made = nullptr;
    const int code = stage.call([&] { return stage.parser->createResult(&made); });
    if (code != resultOk) {
        stage.tell(std::to_string(code));
    } else {
        stage.results[name] = made;
    }
    stage.result = made;
}

void makeParser(Stage& stage, const Words& words) {
    const std::string name = settingOf(words, "name", "main");
    int flags = 0;
    for (const std::string& word : words) {
        flags |= word.find('=') == std::string::npos ? flagOf(word) : 0;
    }
    stage.destroyParser(name);
    IParser* made = nullptr;
    const int code = stage.call([&] { return createParser(&made, flags); });
    stage.parser = made;
    if (code != resultOk) {
        stage.tell(std::to_string(code));
        return;
    }
    stage.parsers[name] = made;
    makeResult(stage, {name});
}

template <typename Object>
void useNamed(const std::map<std::string, Object*>& all, const std::string& name, Object*& used) {
    if (!name.empty()) {
        const auto found = all.find(name);
        used = found == all.end() ? nullptr : found->second;
    }
}

void use(Stage& stage, const Words& words) {
    static ForeignResult foreign;
    const std::string result = settingOf(words, "result", "");
    useNamed(stage.parsers, settingOf(words, "parser", ""), stage.parser);
    useNamed(stage.results, result, stage.result);
    stage.result = result == "foreign" ? &foreign : stage.result;
}

void destroy(Stage& stage, const Words& words) {
    stage.destroyParser(settingOf(words, "parser", ""));
    stage.destroyResult(settingOf(words, "result", ""));
}

void rememberName(Stage& stage, const std::string& name) {
    if (std::find(stage.names.begin(), stage.names.end(), name) == stage.names.end()) {
        stage.names.push_back(name);
    }
}

void rememberNames(Stage& stage, const std::string& list) {
    std::string name;
    for (const char c : list + ",") {
        if (c == ',') {
            rememberName(stage, std::exchange(name, {}));
        } else {
            name += c;
        }
    }
}

void applyValue(Stage& stage,
                const LastItem& last,
                const std::string& text,
                IOption& (IOption::*setting)(const variant_t& value)) {
    const variant_t value = stage.values.make(text, last.type);
    stage.call([&] { (last.item->*setting)(value); });
}

void applyDeprecated(Stage& stage, const LastItem& last, const std::string& text) {
    const std::size_t arrow = text.find("->");
    if (arrow == std::string::npos) {
        throw BadStep("no -> in " + text);
    }
    const variant_t old = stage.values.make(text.substr(0, arrow), last.type);
    const variant_t replacement = stage.values.make(text.substr(arrow + 2), last.type);
    stage.call([&] { last.item->allowDeprecatedValue(old, replacement); });
}

void apply(Stage& stage, const LastItem& last, const std::string& key, const std::string& text) {
    IOption& item = *last.item;
    if (key == "synonym") {
        rememberName(stage, text);
        stage.call([&] { item.synonym(pointerTo(text)); });
    } else if (key == "allow") {
        applyValue(stage, last, text, &IOption::allowValue);
    } else if (key == "deprecated") {
        applyDeprecated(stage, last, text);
    } else if (key == "default") {
        applyValue(stage, last, text, &IOption::defaultValue);
    } else if (key == "tokenize") {
        stage.call([&] { item.tokenize(text.c_str()[0]); });
    } else if (key == "positional") {
        stage.call([&] { item.positional(); });
    } else if (key == "tag") {
        stage.call([&] { item.tag(pointerTo(text)); });
    } else {
        throw BadStep("unknown setting: " + key);
    }
}

void applyAll(Stage& stage, const Words& words, std::size_t begin) {
    const LastItem last = stage.lastItems[stage.parser];
    for (std::size_t i = begin; i < words.size() && last.item != nullptr; ++i) {
        const std::size_t sign = std::min(words[i].find('='), words[i].size());
        const std::string key = words[i].substr(0, sign);
        if (key != "help" && key != "section" && key != "of") {
            apply(stage, last, key, words[i].substr(std::min(sign + 1, words[i].size())));
        }
    }
}

void set(Stage& stage, const Words& words) { applyAll(stage, words, 0); }

// What all declarations have in common.
struct Declaration {
    const char* names;
    const char* help;
    das_variant_type_t type;
    const char* section;
    const char* actions;
};

template <IOption& (*declareItem)(IParser& parser, const Declaration& declaration)>
void declare(Stage& stage, const Words& words) {
    const std::string help = settingOf(words, "help", "");
    const std::string section = settingOf(words, "section", "");
    const std::string actions = settingOf(words, "of", "");
    const Declaration declaration{pointerTo(wordOf(words, 0)),
                                  pointerTo(help),
                                  kindNamed(wordOf(words, 1)),
                                  pointerTo(section),
                                  pointerTo(actions)};
    rememberNames(stage, words[0]);
    IOption* const item = stage.call([&] { return &declareItem(*stage.parser, declaration); });
    stage.lastItems[stage.parser] = {item, declaration.type};
    applyAll(stage, words, 2);
}

IOption& declareOption(IParser& parser, const Declaration& d) {
    return parser.option(d.names, d.help, d.type, d.section);
}

IOption& declareAction(IParser& parser, const Declaration& d) {
    return parser.action(d.names, d.help, d.type, d.section);
}

IOption& declareModifier(IParser& parser, const Declaration& d) {
    return parser.modifier(d.names, d.actions, d.help, d.type, d.section);
}

void declareOptionFile(Stage& stage, const Words& words) {
    const std::string help = settingOf(words, "help", "");
    const std::string section = settingOf(words, "section", "");
    rememberName(stage, "option-file");
    stage.lastItems.erase(stage.parser);
    stage.tellUnless(stage.call(
        [&] { return stage.parser->addOptionFileOption(pointerTo(help), pointerTo(section)); }));
}

void allowGroup(Stage& stage, const Words& words) {
    const std::set<std::string> group(words.begin(), words.end());
    stage.tellUnless(stage.call([&] { return stage.parser->allowSimultaneousActions(group); }));
}

void askDeclared(Stage& stage, const Words& words) {
    const bool isAction = words.size() > 1 && words[1] == "action";
    const std::string section = settingOf(words, "section", "null");
    const char* const name = pointerTo(wordOf(words, 0));
    const bool isDeclared = stage.call(
        [&] { return stage.parser->isOptionDeclared(name, isAction, pointerTo(section)); });
    stage.tell(isDeclared ? "yes" : "no");
}

}  // namespace

Deeds declaringDeeds() {
    return {
        {"parser",     {Needs::nothing, makeParser}             },
        {"result",     {Needs::parser, makeResult}              },
        {"use",        {Needs::nothing, use}                    },
        {"destroy",    {Needs::nothing, destroy}                },
        {"option",     {Needs::parser, declare<declareOption>}  },
        {"action",     {Needs::parser, declare<declareAction>}  },
        {"modifier",   {Needs::parser, declare<declareModifier>}},
        {"set",        {Needs::parser, set}                     },
        {"optionfile", {Needs::parser, declareOptionFile}       },
        {"group",      {Needs::parser, allowGroup}              },
        {"declared",   {Needs::parser, askDeclared}             },
    };
}

}  // namespace zarn_3_3::testing_support
