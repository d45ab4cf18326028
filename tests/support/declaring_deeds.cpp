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

// `operation` makes an object, named null one without a place.
template <typename Object, typename Make>
void make(Stage& stage,
          std::map<std::string, Object*>& all,
          const std::string& name,
          Object*& used,
          Make operation) {
    stage.destroy(all, name, used);
    used = nullptr;
    const int code = stage.call(operation, name == "null" ? nullptr : &used);
    if (code == resultOk) {
        all[name] = used;
    } else {
        stage.tell(std::to_string(code));
    }
}

void makeResult(Stage& stage, const Step& step) {
    const auto create = [parser = stage.parser](IParseResult** out) {
        return parser->createResult(out);
    };
    make(stage, stage.results, wordOf(step, 0), stage.result, create);
}

void makeParser(Stage& stage, const Step& step) {
    const std::string name = settingOf(step.words, "name", "main");
    int flags = 0;
    for (const std::string& word : step.words) {
        flags |= word.find('=') == std::string::npos ? flagOf(word) : 0;
    }
    const auto create = [flags](IParser** out) { return createParser(out, flags); };
    make(stage, stage.parsers, name, stage.parser, create);
    if (stage.parser != nullptr) {
        makeResult(stage, {step.line, "result", {name}});
        if (stage.way != Way::plain && stage.way != Way::asText) {
            stage.call(&IParser::addHandler, stage.parser, &stage.listener);
        }
    }
}

template <typename Object>
void useNamed(const std::map<std::string, Object*>& all, const std::string& name, Object*& used) {
    if (!name.empty()) {
        used = all.count(name) == 0 ? nullptr : all.at(name);
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

void apply(Stage& stage, const std::string& key, const std::string& text) {
    IOption& item = *stage.last.item;
    const auto valueOf = [&stage](const std::string& word) {
        return stage.values.make(word, stage.last.type);
    };
    if (key == "synonym") {
        rememberName(stage, text);
        stage.call(&IOption::synonym, item, pointerTo(text));
    } else if (key == "allow") {
        stage.call(&IOption::allowValue, item, valueOf(text));
    } else if (key == "deprecated" && text.find("->") != std::string::npos) {
        const std::size_t arrow = text.find("->");
        const variant_t replacement = valueOf(text.substr(arrow + 2));
        stage.call(
            &IOption::allowDeprecatedValue, item, valueOf(text.substr(0, arrow)), replacement);
    } else if (key == "default") {
        stage.call(&IOption::defaultValue, item, valueOf(text));
    } else if (key == "tokenize") {
        stage.call(&IOption::tokenize, item, text.c_str()[0]);
    } else if (key == "positional") {
        stage.call(&IOption::positional, item);
    } else if (key == "tag") {
        stage.call(&IOption::tag, item, pointerTo(text));
    } else if (key != "help" && key != "section" && key != "of") {
        throw BadStep("no setting: " + key + "=" + text);
    }
}

void applyFrom(Stage& stage, std::size_t begin, const Words& words) {
    for (std::size_t i = begin; i < words.size() && stage.last.item != nullptr; ++i) {
        const std::size_t sign = std::min(words[i].find('='), words[i].size());
        const std::size_t text = std::min(sign + 1, words[i].size());
        apply(stage, words[i].substr(0, sign), words[i].substr(text));
    }
}

void set(Stage& stage, const Step& step) { applyFrom(stage, 0, step.words); }

void declare(Stage& stage, const Step& step) {
    const std::string help = settingOf(step.words, "help", "");
    const std::string section = settingOf(step.words, "section", "");
    const std::string actions = settingOf(step.words, "of", "");
    const char* const names = pointerTo(wordOf(step, 0));
    const das_variant_type_t type = kindNamed(wordOf(step, 1));
    const auto operation = step.verb == "action" ? &IParser::action : &IParser::option;
    IOption& item =
        step.verb == "modifier"
            ? stage.call(&IParser::modifier,
                         stage.parser,
                         names,
                         pointerTo(actions),
                         pointerTo(help),
                         type,
                         pointerTo(section))
            : stage.call(operation, stage.parser, names, pointerTo(help), type, pointerTo(section));
    std::istringstream list(step.words[0]);
    for (std::string name; std::getline(list, name, ',');) {
        rememberName(stage, name);
    }
    stage.last = {&item, type};
    applyFrom(stage, 2, step.words);
}

void declareOptionFile(Stage& stage, const Step& step) {
    rememberName(stage, "option-file");
    stage.last = {};
    stage.tellUnless(stage.call(&IParser::addOptionFileOption,
                                stage.parser,
                                pointerTo(settingOf(step.words, "help", "")),
                                pointerTo(settingOf(step.words, "section", ""))));
}

void allowGroup(Stage& stage, const Step& step) {
    const std::set<std::string> group(step.words.begin(), step.words.end());
    stage.tellUnless(stage.call(&IParser::allowSimultaneousActions, stage.parser, group));
}

void askDeclared(Stage& stage, const Step& step) {
    const bool isAction = step.words.size() > 1 && step.words[1] == "action";
    const bool isDeclared = stage.call(&IParser::isOptionDeclared,
                                       stage.parser,
                                       pointerTo(wordOf(step, 0)),
                                       isAction,
                                       pointerTo(settingOf(step.words, "section", "null")));
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
