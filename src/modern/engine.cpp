// The exported functions of the modern face.

#include "zarn/typed/engine.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "modern/arguments.h"
#include "modern/behind_parse.h"
#include "modern/failures.h"
#include "modern/habits.h"
#include "modern/messages.h"
#include "modern/outcome.h"
#include "modern/pages.h"
#include "modern/question.h"
#include "modern/vocabulary.h"
#include "modern/writing.h"
#include "parser/messages.h"
#include "text/number_text.h"
#include "text/visible.h"
#include "vocabulary/checks.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

StoredOutcome& stored(Outcome* outcome) { return static_cast<StoredOutcome&>(*outcome); }
const StoredOutcome& stored(const Outcome* outcome) {
    return static_cast<const StoredOutcome&>(*outcome);
}

ItemRecord& record(ItemDescription* item) { return static_cast<ItemRecord&>(*item); }

// What there is to say when the plain parse has ended with this code.
void conclude(StoredOutcome& outcome, int code) {
    Vocabulary& vocabulary = outcome.vocabulary();
    // Before anything can fail: whatever was parsed aside belongs to this outcome from now on.
    outcome.asides() = vocabulary.watch().takeAsides();
    std::string error;
    if (code != resultOk) {
        // The plain text comes first: it is the same for every tool. The face knows the reason.
        FailureNote& failure = vocabulary.plain().failure();
        error = vocabulary.watch().explained(vocabulary.plain().getErrorDesc(), failure.get());
        refine(failure, vocabulary.watch().told().get());
    }
    // Nobody wants to hear of a missing action who has asked for "--about".
    const bool isAlone = isAloneGiven(outcome);
    if (isAlone && code == resultRuleBroken && error == messages::noAction) {
        code = resultOk;
    }
    if (code == resultOk) {
        code = readEnvironment(outcome, error);
    }
    if (code == resultOk && !isAlone) {
        code = checkRequired(outcome, error);
    }
    if (code == resultOk && !isAlone) {
        code = checkRules(outcome, error);
    }
    // The plain parser is told, so that lastDiagnostic says the code that the author has seen.
    outcome.end(vocabulary.plain().ended(code), std::move(error));
}

// Ends the outcome when something is wrong with the line.
void refuseWrong(StoredOutcome& outcome,
                 std::string (*wrong)(Vocabulary&, CommandLine),
                 CommandLine line) {
    if (outcome.code == resultOk && line.argv != nullptr) {
        Vocabulary& vocabulary = outcome.vocabulary();
        const std::string error = wrong(vocabulary, line);
        // Also when nothing is wrong: the failure of a parse before this one is then forgotten.
        const int code = error.empty() ? resultOk : resultRuleBroken;
        outcome.end(vocabulary.plain().ended(code), error);
    }
}

void parseAdapted(StoredOutcome& outcome, CommandLine line) {
    Vocabulary& vocabulary = outcome.vocabulary();
    refuseWrong(outcome, &wrongEmptyArgument, line);
    if (outcome.code == resultOk) {
        const ParseWatch::Session session(vocabulary.watch(), outcome.result(), {});
        conclude(outcome, vocabulary.plain().parseArgsVector(line.argc, line.argv, outcome.plain));
    }
}

// Parses the line without writing variables.
std::unique_ptr<StoredOutcome> parseUnwritten(Vocabulary& vocabulary, CommandLine line) {
    // Here and not when an item is declared: a rule may name what is declared behind it.
    vocabulary.settle();
    auto outcome = std::make_unique<StoredOutcome>(vocabulary);
    refuseWrong(*outcome, &wrongNamedArgument, line);
    // Most tools have no habits, and do not pay for copies of their arguments.
    if (outcome->code != resultOk || !vocabulary.isAdapting() || line.argc < 2 ||
        line.argv == nullptr) {
        parseAdapted(*outcome, line);
        return outcome;
    }
    const std::vector<Word> words = adaptArguments(vocabulary, line);
    std::vector<const char*> adapted{line.argv[0]};
    for (const Word& word : words) {
        adapted.push_back(word.text.c_str());
    }
    const CommandLine adaptedLine{static_cast<int>(adapted.size()), adapted.data()};
    // Only now: letters that were taken apart are no long name.
    refuseWrong(*outcome, &wrongLongName, adaptedLine);
    parseAdapted(*outcome, adaptedLine);
    if (outcome->code != resultOk) {
        std::string error = outcome->text;
        quoteTyped(error, words);
        // What was parsed is not what was typed.
        retype(vocabulary, words);
        outcome->end(outcome->code, std::move(error));
    }
    return outcome;
}

int exitCodeFor(int code) {
    switch (code) {
        case resultOptionFileUnreadable:
            return exitUnreadable;
            // A handler or a check threw: the tool is broken, not the command line.
        case resultException:
            return exitInternal;
        default:
            return exitUsage;
    }
}

std::string textOfNumber(const variant_t& number) {
    switch (number.type()) {
        case vtDouble:
            return textFromNumber(number.get<double>());
        case vtU32:
        case vtU64:
            return textFromNumber(number.get<unsigned long long>());
        case vtString:
            return number.get<std::string>();
        default:
            return textFromNumber(number.get<long long>());
    }
}

}  // namespace

void mistake(const char* names, const std::string& what) {
    throw std::logic_error(messages::mistakeAt(names, what));
}

std::string boundsText(const variant_t& least, const variant_t& greatest) {
    if (greatest.type() == vtNull) {
        return messages::numberAtLeast(textOfNumber(least));
    }
    if (least.type() == vtNull) {
        return messages::numberAtMost(textOfNumber(greatest));
    }
    return messages::numberBetween(textOfNumber(least), textOfNumber(greatest));
}

Vocabulary* createVocabulary(const Tool& tool, int flags) {
    auto* const made = new Vocabulary(tool, flags);
    // Whoever copies a misspelt option out of a document has misspelt it all the same.
    made->plain().vocabulary().refuseEveryDash();
    return made;
}

void releaseVocabulary(Vocabulary* vocabulary) noexcept { vocabulary->release(); }

IParser* plainParser(Vocabulary* vocabulary) noexcept { return &vocabulary->plain(); }

ItemDescription* beginItem(Role role,
                           das_variant_type_t type,
                           const char* names,
                           const char* actions,
                           const char* description) {
    auto* const item = new ItemRecord;
    item->role = role;
    item->type = type;
    item->names = names;
    item->actions = actions;
    item->description = description;
    return item;
}

void releaseItem(ItemDescription* item) noexcept { delete &record(item); }

Extras& extrasOf(ItemDescription* item) { return record(item).changeableExtras(); }

void allowValue(ItemDescription* item, const variant_t& value, const variant_t& replacement) {
    extrasOf(item).allowed.push_back({value, replacement});
}

void addCheck(ItemDescription* item, Check* check) noexcept { append(record(item).checks, check); }

void declareItem(Vocabulary* vocabulary, const char* section, ItemDescription* item) {
    vocabulary->declare(section, item);
}

void showDefaults(Vocabulary* vocabulary) noexcept { vocabulary->showDefaults(); }

void addLineCheck(Vocabulary* vocabulary, Check* check) noexcept { vocabulary->add(check); }

void acceptHabits(Vocabulary* vocabulary, unsigned habits) noexcept { vocabulary->accept(habits); }

void addRule(Vocabulary* vocabulary, RuleKind kind, const char* const* names, std::size_t count) {
    Rule rule;
    rule.kind = kind;
    rule.names.assign(names, names + count);
    vocabulary->add(std::move(rule));
}

std::string findingsIn(Vocabulary* vocabulary, const char* ignored) {
    vocabulary->settle();
    Findings findings(ignored == nullptr ? "" : ignored);
    checkVocabulary(vocabulary->plain(), findings);
    return findings.text();
}

std::string pageOf(Vocabulary* vocabulary, const HelpStyle& style) {
    return pageOf(*vocabulary, nameOfTool(*vocabulary, {0, nullptr}), style);
}

Outcome* parseLine(Vocabulary* vocabulary, int argc, const char* const* argv) {
    auto outcome = parseUnwritten(*vocabulary, {argc, argv});
    writeVariables(*outcome);
    return outcome.release();
}

Outcome* parseText(Vocabulary* vocabulary, const char* text, Outcome* into) {
    // Owned first: whatever throws behind this takes it along.
    std::unique_ptr<StoredOutcome> outcome(into != nullptr ? &stored(into)
                                                           : new StoredOutcome(*vocabulary));
    vocabulary->settle();
    const ParseWatch::Session session(
        vocabulary->watch(), outcome->result(), std::move(outcome->asides()));
    conclude(*outcome, vocabulary->plain().parseStream(text, outcome->plain));
    writeVariables(*outcome);
    return outcome.release();
}

Outcome* runLine(Vocabulary* vocabulary,
                 int argc,
                 const char* const* argv,
                 Answer& answer,
                 void (*fit)(HelpStyle&)) {
    // In front of everything else, since help has to show them, and a question has to name them.
    const CommandLine line{argc, argv};
    declareAnswers(*vocabulary);
    const std::string tool = nameOfTool(*vocabulary, line);
    // For help() behind this call, which has no command line to look at.
    vocabulary->callAs(tool);
    std::optional<Answer> found = answerToQuestion(*vocabulary, tool, line);
    const Teller teller{tool, fit};
    // In front of the parse: help is wanted most where the rest of the line is wrong.
    if (!found) {
        found = findAnswer(*vocabulary, teller, line);
    }
    auto outcome =
        found ? std::make_unique<StoredOutcome>(*vocabulary) : parseUnwritten(*vocabulary, line);
    // Again behind it, for abbreviations and option files.
    if (!found) {
        found = findAnswer(*vocabulary, teller, outcome->result());
    }
    if (found) {
        answer = std::move(*found);
    }
    return outcome.release();
}

void finishRun(Outcome* outcome, Answer& answer) {
    // Where help was asked for the tool ends, and its checks have nothing to look at.
    if (answer.exitCode) {
        return;
    }
    Vocabulary& vocabulary = stored(outcome).vocabulary();
    writeVariables(stored(outcome));
    if (outcome->code != resultOk) {
        answer.error = filled(
            "{}: {}\n",
            {nameOfTool(vocabulary, {0, nullptr}), visible(toldInFull(vocabulary, outcome->text))});
        answer.exitCode = exitCodeFor(outcome->code);
    }
}

void releaseOutcome(Outcome* outcome) noexcept { delete &stored(outcome); }

Origin findValues(const Outcome* outcome, const char* name, Value& last, std::vector<Value>* all) {
    Found found = stored(outcome).find(name, all);
    last = std::move(found.last);
    return found.origin;
}

}  // namespace zarn_3_3::internal
