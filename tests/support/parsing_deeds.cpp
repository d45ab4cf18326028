// The deeds of scenarios that parse, and those of handlers.

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstring>
#include <iostream>
#include <new>
#include <stdexcept>

#include "support/file_calls_double.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

// A parse may begin inside an event of another.
template <typename Operation, typename... Arguments>
void parse(Stage& stage, LentTexts& texts, Operation operation, Arguments... arguments) {
    const Restored lent(stage.lent, &texts);
    IParser* const parser = stage.parser;
    const int code = stage.call(operation, parser, arguments..., stage.result);
    const std::string error = stage.keep(parser, stage.call(&IParser::getErrorDesc, parser));
    stage.tell(std::to_string(code) + (code == resultOk || error.empty() ? "" : " " + error));
}

void parseText(Stage& stage, const std::string& text) {
    LentTexts texts;
    parse(stage, texts, &IParser::parseStream, texts.lend(text));
}

// What another way needs beforehand is to go well.
template <typename Parse>
void parseBefore(Stage& stage, Parse parseSome) {
    parseSome();
    stage.isComparable = stage.isComparable && stage.observer.answers.back().text == "0";
    stage.observer.answers.pop_back();
}

bool canBeLine(const std::string& word) {
    return !word.empty() && word != "null" && word.find('\n') == std::string::npos &&
           std::isspace(static_cast<unsigned char>(word.front())) == 0 && word.front() != ';' &&
           word.front() != '#' && word.back() != '\r' && !startsWith(word, "\xEF\xBB\xBF");
}

void parseLines(Stage& stage, const Words& lines) {
    const std::string naming = "--option-file=lines";
    // With a line feed at the end: the text "-1" alone would read as "?".
    const std::string text = joined(lines, 0, lines.size(), '\n') + "\n";
    const bool isInFile = stage.way == Way::asFile;
    fileCalls.files["lines"] =
        std::make_shared<MemoryFile>(MemoryFile{"file", isInFile ? text : ""});
    parseBefore(stage, [&] {  // a text does not bring the defaults along
        LentTexts none;
        const char* const* const argv = nullptr;
        parse(stage, none, &IParser::parseArgsVector, 0, argv);
    });
    if (stage.way == Way::behindFile) {
        parseBefore(stage, [&] { parseText(stage, naming); });
    }
    parseText(stage, isInFile ? naming : text);
}

// Words behind "args" stand behind the name of the program, which is never read.
void parseVector(Stage& stage, const Step& step) {
    const bool isCounted = step.verb == "argv";
    const std::size_t size = step.words.size();
    if (stage.way >= Way::asText && !isCounted && size > 0 &&
        std::all_of(step.words.begin(), step.words.end(), canBeLine)) {
        return parseLines(stage, step.words);
    }
    const long count = isCounted ? numberOf(wordOf(step, 0)) : static_cast<long>(size) + 1;
    LentTexts texts;
    texts.argv.resize(isCounted ? 0 : 1);
    for (std::size_t i = isCounted ? 1 : 0; i < size; ++i) {
        texts.argv.push_back(texts.lend(step.words[i]));
    }
    const char* const* const argv = texts.argv.empty() ? nullptr : texts.argv.data();
    parse(stage, texts, &IParser::parseArgsVector, static_cast<int>(count), argv);
}

void parseWords(Stage& stage, const Step& step) {
    parseText(stage, joined(step.words, 0, step.words.size(), '\n'));
}

template <typename Function>
Function* operationAt(const void* object, std::size_t slot) {
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return reinterpret_cast<Function*>(table[slot]);
}

// Steps of a parse, as derived tools call them: by their numbers in the virtual table.
void parseVectorInPart(Stage& stage, const Step& step) {
    using ParseVector = int(void*, Words&, IParseResult*);
    using Phase = int(void*, const std::string&, Words&, IParseResult*, std::string&);
    const bool isWhole = step.verb == "vector";
    Words args(step.words.begin() + (isWhole ? 0 : 1), step.words.end());
    std::string outcome;
    try {
        std::string error;
        const int code =
            isWhole
                ? stage.call(
                      operationAt<ParseVector>(stage.parser, 22), stage.parser, args, stage.result)
                : stage.call(operationAt<Phase>(stage.parser, step.verb == "phaseOne" ? 23 : 24),
                             stage.parser,
                             step.words[0],
                             args,
                             stage.result,
                             error);
        const bool isToldByParser = isWhole && code != resultOk;
        outcome = std::to_string(code) + " " +
                  (isToldByParser ? stage.call(&IParser::getErrorDesc, stage.parser) : error);
    } catch (const std::exception& thrown) {
        outcome = std::string("threw ") + thrown.what();
    }
    stage.tell(outcome + " | " + joined(args, 0, args.size(), ' '));
}

void tellError(Stage& stage, const Step&) {
    stage.tell(stage.keep(stage.parser, stage.call(&IParser::getErrorDesc, stage.parser)));
}

void makeFile(Stage&, const Step& step) {
    fileCalls.files[wordOf(step, 0)] = std::make_shared<MemoryFile>(
        MemoryFile{step.verb, joined(step.words, 1, step.words.size(), '\n')});
}

void makeLink(Stage&, const Step& step) {
    fileCalls.files[wordOf(step, 0)] = fileCalls.files[wordOf(step, 1)];
}

EventHandler* handlerNamed(Stage& stage, const std::string& word) {
    if (word == "null" || word == "parser") {
        return word == "null" ? nullptr : stage.parser;
    }
    const std::string other = settingOf({word}, "parser", "");
    if (!other.empty()) {
        const auto found = stage.parsers.find(other);
        return found == stage.parsers.end() ? nullptr : found->second;
    }
    return &stage.handlers.at(static_cast<std::size_t>(numberOf(word)));
}

void changeHandlers(Stage& stage, const Step& step) {
    const auto change = step.verb == "add" ? &IParser::addHandler : &IParser::removeHandler;
    stage.tellUnless(stage.call(change, stage.parser, handlerNamed(stage, wordOf(step, 0))));
}

void plan(Stage& stage, const Step& step) {
    const auto handler = static_cast<std::size_t>(numberOf(wordOf(step, 0)));
    const std::string nth = settingOf({wordOf(step, 1)}, "nth", "0");
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
    const std::string& kind = wordOf(step, 0);
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
    stage.locale.reset();
    if (wordOf(step, 0) == "grouping") {
        stage.locale.emplace([&stage] { stage.lent != nullptr ? stage.lent->takeBack() : void(); });
    }
}

void setLack(Stage&, const Step& step) { memory.left = numberOf(wordOf(step, 0)); }

void setSigns(Stage& stage, const Step&) {
    std::cout << std::showpos;
    stage.hasSigns = true;
}

void setLeft(Stage& stage, const Step& step) {
    stage.beginNumbers(static_cast<int>(INT_MAX - numberOf(wordOf(step, 0))));
}

}  // namespace

Deeds parsingDeeds() {
    return {
        {"args",       {Needs::parser, parseVector}      },
        {"argv",       {Needs::parser, parseVector}      },
        {"text",       {Needs::parser, parseWords}       },
        {"vector",     {Needs::parser, parseVectorInPart}},
        {"phaseOne",   {Needs::parser, parseVectorInPart}},
        {"phaseTwo",   {Needs::parser, parseVectorInPart}},
        {"error",      {Needs::parser, tellError}        },
        {"file",       {Needs::nothing, makeFile}        },
        {"pipe",       {Needs::nothing, makeFile}        },
        {"growing",    {Needs::nothing, makeFile}        },
        {"directory",  {Needs::nothing, makeFile}        },
        {"device",     {Needs::nothing, makeFile}        },
        {"huge",       {Needs::nothing, makeFile}        },
        {"changing",   {Needs::nothing, makeFile}        },
        {"unreadable", {Needs::nothing, makeFile}        },
        {"link",       {Needs::nothing, makeLink}        },
        {"add",        {Needs::parser, changeHandlers}   },
        {"remove",     {Needs::parser, changeHandlers}   },
        {"on",         {Needs::nothing, plan}            },
        {"refuse",     {Needs::nothing, refuse}          },
        {"throw",      {Needs::nothing, throwSome}       },
        {"locale",     {Needs::nothing, setLocale}       },
        {"signs",      {Needs::nothing, setSigns}        },
        {"left",       {Needs::nothing, setLeft}         },
        {"lack",       {Needs::nothing, setLack}         },
    };
}

}  // namespace zarn_3_3::testing_support
