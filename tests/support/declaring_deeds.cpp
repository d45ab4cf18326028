// The deeds of scenarios that make parsers and declare vocabularies.

#include <algorithm>
#include <set>
#include <sstream>

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

template <typename Object, typename Make>
void make(Stage& stage,
          std::map<std::string, Object*>& all,
          const std::string& name,
          Object*& used,
          Make operation) {
    stage.destroy(all, name, used);
    Object* made = nullptr;
    const int code =
        stage.call([&] { return operation(pointerTo(name) == nullptr ? nullptr : &made); });
    if (code == resultOk) {
        all[name] = made;
    } else {
        stage.tell(std::to_string(code));
    }
    used = made;
}

void makeResultNamed(Stage& stage, const std::string& name) {
    IParser& parser = *stage.parser;
    make(stage, stage.results, name, stage.result, [&parser](IParseResult** out) {
        return parser.createResult(out);
    });
}

void makeResult(Stage& stage, const Step& step) { makeResultNamed(stage, wordOf(step.words, 0)); }

void makeParser(Stage& stage, const Step& step) {
    const std::string name = settingOf(step.words, "name", "main");
    int flags = 0;
    for (const std::string& word : step.words) {
        flags |= word.find('=') == std::string::npos ? flagOf(word) : 0;
    }
    make(stage, stage.parsers, name, stage.parser, [flags](IParser** out) {
        return createParser(out, flags);
    });
    if (stage.parser != nullptr) {
        makeResultNamed(stage, name);
    }
}

template <typename Object>
void useNamed(const std::map<std::string, Object*>& all, const std::string& name, Object*& used) {
    if (!name.empty()) {
        const auto found = all.find(name);
        used = found == all.end() ? nullptr : found->second;
    }
}

void use(Stage& stage, const Step& step) {
    static ForeignResult foreign;
    const std::string result = settingOf(step.words, "result", "");
    useNamed(stage.parsers, settingOf(step.words, "parser", ""), stage.parser);
    useNamed(stage.results, result, stage.result);
    stage.result = result == "foreign" ? &foreign : stage.result;
}

void destroy(Stage& stage, const Step& step) {
    stage.destroy(stage.parsers, settingOf(step.words, "parser", ""), stage.parser);
    stage.destroy(stage.results, settingOf(step.words, "result", ""), stage.result);
}

void rememberName(Stage& stage, const std::string& name) {
    if (std::find(stage.names.begin(), stage.names.end(), name) == stage.names.end()) {
        stage.names.push_back(name);
    }
}

void applyDeprecated(Stage& stage, const std::string& text) {
    const std::size_t arrow = text.find("->");
    if (arrow == std::string::npos) {
        throw BadStep("no -> in " + text);
    }
    const variant_t old = stage.values.make(text.substr(0, arrow), stage.last.type);
    const variant_t replacement = stage.values.make(text.substr(arrow + 2), stage.last.type);
    stage.call([&] { stage.last.item->allowDeprecatedValue(old, replacement); });
}

void apply(Stage& stage, const std::string& key, const std::string& text) {
    IOption& item = *stage.last.item;
    const bool isValue = key == "allow" || key == "default";
    const variant_t value = isValue ? stage.values.make(text, stage.last.type) : variant_t();
    if (key == "synonym") {
        rememberName(stage, text);
        stage.call([&] { item.synonym(pointerTo(text)); });
    } else if (key == "allow") {
        stage.call([&] { item.allowValue(value); });
    } else if (key == "deprecated") {
        applyDeprecated(stage, text);
    } else if (key == "default") {
        stage.call([&] { item.defaultValue(value); });
    } else if (key == "tokenize") {
        stage.call([&] { item.tokenize(text.c_str()[0]); });
    } else if (key == "positional") {
        stage.call([&] { item.positional(); });
    } else if (key == "tag") {
        stage.call([&] { item.tag(pointerTo(text)); });
    } else if (key != "help" && key != "section" && key != "of") {
        throw BadStep("unknown setting: " + key);
    }
}

void applyFrom(Stage& stage, std::size_t begin, const Words& words) {
    for (std::size_t i = begin; i < words.size() && stage.last.item != nullptr; ++i) {
        const std::size_t sign = std::min(words[i].find('='), words[i].size());
        apply(
            stage, words[i].substr(0, sign), words[i].substr(std::min(sign + 1, words[i].size())));
    }
}

void set(Stage& stage, const Step& step) { applyFrom(stage, 0, step.words); }

void declare(Stage& stage, const Step& step) {
    const std::string helpText = settingOf(step.words, "help", "");
    const std::string sectionText = settingOf(step.words, "section", "");
    const std::string actions = settingOf(step.words, "of", "");
    const char* const names = pointerTo(wordOf(step.words, 0));
    const char* const help = pointerTo(helpText);
    const char* const section = pointerTo(sectionText);
    const das_variant_type_t type = kindNamed(wordOf(step.words, 1));
    IOption& item = stage.call([&]() -> IOption& {
        IParser& parser = *stage.parser;
        return step.verb == "option" ? parser.option(names, help, type, section)
               : step.verb == "action"
                   ? parser.action(names, help, type, section)
                   : parser.modifier(names, pointerTo(actions), help, type, section);
    });
    std::istringstream list(step.words[0]);
    for (std::string name; std::getline(list, name, ',');) {
        rememberName(stage, name);
    }
    stage.last = {&item, type};
    applyFrom(stage, 2, step.words);
}

void declareOptionFile(Stage& stage, const Step& step) {
    const std::string help = settingOf(step.words, "help", "");
    const std::string section = settingOf(step.words, "section", "");
    rememberName(stage, "option-file");
    stage.last = {};
    stage.tellUnless(stage.call(
        [&] { return stage.parser->addOptionFileOption(pointerTo(help), pointerTo(section)); }));
}

void allowGroup(Stage& stage, const Step& step) {
    const std::set<std::string> group(step.words.begin(), step.words.end());
    stage.tellUnless(stage.call([&] { return stage.parser->allowSimultaneousActions(group); }));
}

void askDeclared(Stage& stage, const Step& step) {
    const bool isAction = step.words.size() > 1 && step.words[1] == "action";
    const std::string section = settingOf(step.words, "section", "null");
    const char* const name = pointerTo(wordOf(step.words, 0));
    const bool isDeclared = stage.call(
        [&] { return stage.parser->isOptionDeclared(name, isAction, pointerTo(section)); });
    stage.tell(isDeclared ? "yes" : "no");
}

}  // namespace

Deeds declaringDeeds() {
    return {
        {"parser",     {Needs::nothing, makeParser}      },
        {"result",     {Needs::parser, makeResult}       },
        {"use",        {Needs::nothing, use}             },
        {"destroy",    {Needs::nothing, destroy}         },
        {"option",     {Needs::parser, declare}          },
        {"action",     {Needs::parser, declare}          },
        {"modifier",   {Needs::parser, declare}          },
        {"set",        {Needs::parser, set}              },
        {"optionfile", {Needs::parser, declareOptionFile}},
        {"group",      {Needs::parser, allowGroup}       },
        {"declared",   {Needs::parser, askDeclared}      },
    };
}

}  // namespace zarn_3_3::testing_support
