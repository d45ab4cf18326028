// The deeds of scenarios that parse, and those of handlers.

#include <algorithm>
#include <climits>
#include <new>
#include <stdexcept>

#include "support/file_calls_double.h"
#include "support/restored.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

// A parse may begin inside an event of another.
template <typename Parse>
void parse(Stage& stage, LentTexts& texts, Parse operation) {
    const Restored lent(stage.lent, &texts);
    IParser& parser = *stage.parser;
    const int code = stage.call(operation);
    const std::string error =
        stage.keep(&parser, stage.call([&parser] { return parser.getErrorDesc(); }));
    stage.tell(std::to_string(code) + (code == resultOk || error.empty() ? "" : " " + error));
}

void parseVector(Stage& stage, int count, const Words& words, std::vector<const char*> argv) {
    LentTexts texts;
    texts.argv = std::move(argv);
    for (const std::string& word : words) {
        texts.argv.push_back(texts.lend(word));
    }
    const char* const* const first = texts.argv.empty() ? nullptr : texts.argv.data();
    parse(stage, texts, [&] { return stage.parser->parseArgsVector(count, first, stage.result); });
}

// The name of the program is never read.
void parseArgs(Stage& stage, const Step& step) {
    parseVector(stage, static_cast<int>(step.words.size()) + 1, step.words, {nullptr});
}

void parseArgv(Stage& stage, const Step& step) {
    const int count = static_cast<int>(numberOf(wordOf(step.words, 0)));
    parseVector(stage, count, Words(step.words.begin() + 1, step.words.end()), {});
}

void parseText(Stage& stage, const Step& step) {
    LentTexts texts;
    const char* const text = texts.lend(joined(step.words, 0, step.words.size(), '\n'));
    parse(stage, texts, [&] { return stage.parser->parseStream(text, stage.result); });
}

void tellError(Stage& stage, const Step&) {
    stage.tell(stage.keep(stage.parser, stage.call([&] { return stage.parser->getErrorDesc(); })));
}

void makeFile(Stage&, const Step& step) {
    static const std::map<std::string, FileKind> kinds{
        {"file",       FileKind::regular   },
        {"pipe",       FileKind::pipe      },
        {"growing",    FileKind::growing   },
        {"directory",  FileKind::directory },
        {"device",     FileKind::device    },
        {"unreadable", FileKind::unreadable},
    };
    fileCalls.files[wordOf(step.words, 0)] = std::make_shared<MemoryFile>(
        MemoryFile{kinds.at(step.verb), joined(step.words, 1, step.words.size(), '\n')});
}

void makeLink(Stage&, const Step& step) {
    fileCalls.files[wordOf(step.words, 0)] = fileCalls.files[wordOf(step.words, 1)];
}

EventHandler* handlerNamed(Stage& stage, const std::string& word) {
    if (word == "null" || word == "parser") {
        return word == "null" ? nullptr : stage.parser;
    }
    const std::string other = settingOf({word}, "parser", "");
    if (!other.empty()) {
        return stage.parsers.at(other);
    }
    return &stage.handlers.at(static_cast<std::size_t>(numberOf(word)));
}

void changeHandlers(Stage& stage, const Step& step) {
    EventHandler* const handler = handlerNamed(stage, wordOf(step.words, 0));
    const bool isAdded = step.verb == "add";
    stage.tellUnless(stage.call([&] {
        return isAdded ? stage.parser->addHandler(handler) : stage.parser->removeHandler(handler);
    }));
}

void plan(Stage& stage, const Step& step) {
    const std::size_t handler = static_cast<std::size_t>(numberOf(wordOf(step.words, 0)));
    const std::string nth = settingOf({wordOf(step.words, 1)}, "nth", "0");
    const auto colon = std::find(step.words.begin(), step.words.end(), ":");
    if (step.words.end() - colon < 2) {
        throw BadStep("no step behind ':'");
    }
    const std::string event = joined(
        step.words, nth == "0" ? 1 : 2, static_cast<std::size_t>(colon - step.words.begin()), ' ');
    const Step inner{stage.observer.line, colon[1], Words(colon + 2, step.words.end())};
    stage.handlers.at(handler).plan(numberOf(nth), event, inner);
}

void refuse(Stage& stage, const Step&) { stage.isRefused = true; }

struct SilentException final : std::exception {
    const char* what() const noexcept override { return nullptr; }
};

void throwSome(Stage&, const Step& step) {
    const std::string& kind = wordOf(step.words, 0);
    if (kind == "standard") {
        throw std::runtime_error(joined(step.words, 1, step.words.size(), ' '));
    }
    if (kind == "memory") {
        throw std::bad_alloc();
    }
    if (kind == "silent") {
        throw SilentException();
    }
    if (kind == "foreign") {
        throw ForeignException();
    }
    throw BadStep("nothing to throw: " + kind);
}

void setLocale(Stage& stage, const Step& step) {
    if (wordOf(step.words, 0) == "grouping") {
        stage.locale.emplace();
    } else {
        stage.locale.reset();
    }
}

void setLeft(Stage& stage, const Step& step) {
    stage.beginNumbers(static_cast<int>(INT_MAX - numberOf(wordOf(step.words, 0))));
}

}  // namespace

Deeds parsingDeeds() {
    return {
        {"args",       {Needs::parser, parseArgs} },
        {"argv",       {Needs::parser, parseArgv} },
        {"text",       {Needs::parser, parseText} },
        {"error",      {Needs::parser, tellError} },
        {"file",       {Needs::nothing, makeFile} },
        {"pipe",       {Needs::nothing, makeFile} },
        {"growing",    {Needs::nothing, makeFile} },
        {"directory",  {Needs::nothing, makeFile} },
        {"device",     {Needs::nothing, makeFile} },
        {"unreadable", {Needs::nothing, makeFile} },
        {"link",       {Needs::nothing, makeLink} },
        {"locale",     {Needs::nothing, setLocale}},
        {"left",       {Needs::nothing, setLeft}  },
    };
}

Deeds handlerDeeds() {
    return {
        {"add",    {Needs::parser, changeHandlers}},
        {"remove", {Needs::parser, changeHandlers}},
        {"on",     {Needs::nothing, plan}         },
        {"refuse", {Needs::nothing, refuse}       },
        {"throw",  {Needs::nothing, throwSome}    },
    };
}

}  // namespace zarn_3_3::testing_support
