// The deeds of scenarios that parse, and those of handlers.

#include <algorithm>
#include <climits>
#include <new>
#include <stdexcept>

#include "support/file_calls_double.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

// A parse may begin inside an event of another.
class Lending {
public:
    explicit Lending(Stage& lender) : stage(lender), before(stage.lent) { stage.lent = &texts; }
    Lending(const Lending&) = delete;
    Lending& operator=(const Lending&) = delete;
    ~Lending() { stage.lent = before; }

    LentTexts texts;

private:
    Stage& stage;
    LentTexts* before;
};

template <typename Parse>
void parse(Stage& stage, Parse operation) {
    IParser& parser = *stage.parser;
    const int code = stage.call(operation);
    const std::string error =
        stage.keep(&parser, stage.call([&parser] { return parser.getErrorDesc(); }));
    stage.tell(std::to_string(code) + (code == resultOk || error.empty() ? "" : " " + error));
}

void parseVector(Stage& stage, int count, const Words& words, std::vector<const char*> argv) {
    Lending lending(stage);
    lending.texts.argv = std::move(argv);
    for (const std::string& word : words) {
        lending.texts.argv.push_back(lending.texts.lend(word));
    }
    const auto& all = lending.texts.argv;
    const char* const* const first = all.empty() ? nullptr : all.data();
    parse(stage, [&] { return stage.parser->parseArgsVector(count, first, stage.result); });
}

// The name of the program is never read.
void parseArgs(Stage& stage, const Words& words) {
    parseVector(stage, static_cast<int>(words.size()) + 1, words, {nullptr});
}

void parseArgv(Stage& stage, const Words& words) {
    const int count = static_cast<int>(numberOf(wordOf(words, 0)));
    parseVector(stage, count, Words(words.begin() + 1, words.end()), {});
}

void parseText(Stage& stage, const Words& words) {
    Lending lending(stage);
    const char* const text = lending.texts.lend(joined(words, 0, words.size(), '\n'));
    parse(stage, [&] { return stage.parser->parseStream(text, stage.result); });
}

void tellError(Stage& stage, const Words&) {
    stage.tell(stage.keep(stage.parser, stage.call([&] { return stage.parser->getErrorDesc(); })));
}

template <FileKind kind>
void makeFile(Stage&, const Words& words) {
    fileCalls.files[wordOf(words, 0)] =
        std::make_shared<MemoryFile>(MemoryFile{kind, joined(words, 1, words.size(), '\n')});
}

void makeLink(Stage&, const Words& words) {
    fileCalls.files[wordOf(words, 0)] = fileCalls.files[wordOf(words, 1)];
}

EventHandler* handlerNamed(Stage& stage, const std::string& word) {
    if (word == "null" || word == "parser") {
        return word == "null" ? nullptr : stage.parser;
    }
    return &stage.handlers.at(static_cast<std::size_t>(numberOf(word)));
}

template <bool (IParser::*operation)(EventHandler* handler)>
void changeHandlers(Stage& stage, const Words& words) {
    EventHandler* const handler = handlerNamed(stage, wordOf(words, 0));
    stage.tellUnless(stage.call([&] { return (stage.parser->*operation)(handler); }));
}

void plan(Stage& stage, const Words& words) {
    const std::size_t handler = static_cast<std::size_t>(numberOf(wordOf(words, 0)));
    const std::string nth = settingOf({wordOf(words, 1)}, "nth", "0");
    const auto colon = std::find(words.begin(), words.end(), ":");
    if (words.end() - colon < 2) {
        throw BadStep("no step behind ':'");
    }
    const std::string event =
        joined(words, nth == "0" ? 1 : 2, static_cast<std::size_t>(colon - words.begin()), ' ');
    const Step step{stage.observer.line, colon[1], Words(colon + 2, words.end())};
    stage.handlers.at(handler).plan(numberOf(nth), event, step);
}

void refuse(Stage& stage, const Words&) { stage.isRefused = true; }

struct SilentException final : std::exception {
    const char* what() const noexcept override { return nullptr; }
};

void throwSome(Stage&, const Words& words) {
    const std::string& kind = wordOf(words, 0);
    if (kind == "standard") {
        throw std::runtime_error(joined(words, 1, words.size(), ' '));
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

void setLocale(Stage& stage, const Words& words) {
    if (wordOf(words, 0) == "grouping") {
        stage.locale.emplace();
    } else {
        stage.locale.reset();
    }
}

void setLeft(Stage& stage, const Words& words) {
    stage.beginNumbers(static_cast<int>(INT_MAX - numberOf(wordOf(words, 0))));
}

}  // namespace

Deeds parsingDeeds() {
    return {
        {"args",       {Needs::parser, parseArgs}                      },
        {"argv",       {Needs::parser, parseArgv}                      },
        {"text",       {Needs::parser, parseText}                      },
        {"error",      {Needs::parser, tellError}                      },
        {"file",       {Needs::nothing, makeFile<FileKind::regular>}   },
        {"pipe",       {Needs::nothing, makeFile<FileKind::pipe>}      },
        {"growing",    {Needs::nothing, makeFile<FileKind::growing>}   },
        {"directory",  {Needs::nothing, makeFile<FileKind::directory>} },
        {"device",     {Needs::nothing, makeFile<FileKind::device>}    },
        {"unreadable", {Needs::nothing, makeFile<FileKind::unreadable>}},
        {"link",       {Needs::nothing, makeLink}                      },
        {"locale",     {Needs::nothing, setLocale}                     },
        {"left",       {Needs::nothing, setLeft}                       },
    };
}

Deeds handlerDeeds() {
    return {
        {"add",    {Needs::parser, changeHandlers<&IParser::addHandler>}   },
        {"remove", {Needs::parser, changeHandlers<&IParser::removeHandler>}},
        {"on",     {Needs::nothing, plan}                                  },
        {"refuse", {Needs::nothing, refuse}                                },
        {"throw",  {Needs::nothing, throwSome}                             },
    };
}

}  // namespace zarn_3_3::testing_support
