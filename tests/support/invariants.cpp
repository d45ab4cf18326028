#include "support/invariants.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <utility>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

using Steps = std::vector<Step>;

// Steps that a scenario gets in addition have negative lines.
bool isAdded(int line) { return line < 0; }

bool hasDeed(const Scenario& scenario, const std::string& deed) {
    return std::any_of(scenario.steps.begin(), scenario.steps.end(), [&](const Step& step) {
        return step.verb == "on" &&
               std::find(step.words.begin(), step.words.end(), deed) != step.words.end();
    });
}

// Without what added steps answer; events in a row are in one line.
std::string textOf(const Answers& answers, std::initializer_list<Kind> unwanted) {
    std::string text;
    Kind before = Kind::outcome;
    for (const Answer& answer : answers) {
        const bool isUnwanted =
            std::find(unwanted.begin(), unwanted.end(), answer.kind) != unwanted.end();
        if (isUnwanted || (isAdded(answer.line) && answer.kind == Kind::outcome)) {
            continue;
        }
        const bool goesOn = before == Kind::event && answer.kind == Kind::event;
        text += (goesOn ? "; " : "\n") + answer.text;
        before = answer.kind;
    }
    return text;
}

std::string difference(const char* what,
                       const Answers& found,
                       const Answers& expected,
                       std::initializer_list<Kind> unwanted) {
    const std::string foundText = textOf(found, unwanted);
    const std::string expectedText = textOf(expected, unwanted);
    return foundText == expectedText
               ? ""
               : std::string(what) + "\n--- expected" + expectedText + "\n--- found" + foundText;
}

Scenario rewritten(Scenario scenario, const std::function<Steps(const Step&)>& rewrite) {
    const Steps before = std::exchange(scenario.steps, {});
    for (const Step& step : before) {
        const Steps after = rewrite(step);
        scenario.steps.insert(scenario.steps.end(), after.begin(), after.end());
    }
    return scenario;
}

const char* const listener = "9";

Scenario heard(const Scenario& scenario) {
    return rewritten(scenario, [](const Step& step) {
        return step.verb == "parser" ? Steps{step, {-step.line, "add", {listener}}} : Steps{step};
    });
}

bool canBeLine(const std::string& word) {
    return !word.empty() && word != "null" && word.find('\n') == std::string::npos &&
           std::isspace(static_cast<unsigned char>(word.front())) == 0 && word.front() != ';' &&
           word.front() != '#' && word.back() != '\r' && !startsWith(word, "\xEF\xBB\xBF");
}

bool canBeLines(const Step& step) {
    return step.verb == "args" && !step.words.empty() &&
           std::all_of(step.words.begin(), step.words.end(), canBeLine);
}

// With a line feed at the end: the text "-1" alone would read as "?".
Words linesOf(const Step& step) {
    Words lines = step.words;
    lines.emplace_back();
    return lines;
}

// A text does not bring the defaults along.
Steps asText(const Step& step) {
    return {
        {-step.line, "argv", {"0"}        },
        {step.line,  "text", linesOf(step)}
    };
}

// Reads an empty file, so that the numbers and the result are the same, and then the text.
Steps besideOptionFile(const Step& step) {
    return {
        {-step.line, "file", {"lines"}              },
        {-step.line, "argv", {"0"}                  },
        {-step.line, "text", {"--option-file=lines"}},
        {step.line,  "text", linesOf(step)          }
    };
}

Steps asOptionFile(const Step& step) {
    Words file = linesOf(step);
    file.insert(file.begin(), "lines");
    return {
        {-step.line, "file", file                   },
        {-step.line, "argv", {"0"}                  },
        {step.line,  "text", {"--option-file=lines"}}
    };
}

bool hasFailedInAddition(const Answers& answers) {
    return std::any_of(answers.begin(), answers.end(), [](const Answer& answer) {
        return isAdded(answer.line) && answer.kind == Kind::outcome && answer.text != "0";
    });
}

// Every parse reads all files that the result names.
bool namesOneFile(const Answers& answers) {
    const std::string named = std::string(listener) + " option option-file";
    const std::string events = textOf(answers, {Kind::log, Kind::warning, Kind::outcome});
    const std::size_t first = events.find(named);
    return first != std::string::npos && events.find(named, first + 1) == std::string::npos;
}

// What a scenario itself can bring about, beside its handlers.
bool isKnownException(const std::string& text) {
    static const char* const known[] = {"The result is null",
                                        "The argument vector is null",
                                        "The sequence numbers are used up",
                                        "std::bad_cast"};
    static const char* const ofNamelessItems =
        "vector::_M_range_check: __n (which is 0) >= this->size() (which is 0)";
    return text == ofNamelessItems ||
           std::find(std::begin(known), std::end(known), text) != std::end(known);
}

std::string contradictionOf(const Scenario& scenario, const std::string& outcome) {
    const std::string text = outcome.size() > 2 ? outcome.substr(2) : "";
    if (outcome == "no parser" || startsWith(outcome, "threw ")) {
        return "";
    }
    switch (outcome[0]) {
        case '0':
            return text.empty() ? "" : "a text without a failure: " + text;
        case '1':
            return hasDeed(scenario, "refuse") && !text.empty() ? "" : "refused by nobody";
        case '3':
            return hasDeed(scenario, "throw") || isKnownException(text) ? "" : "thrown: " + text;
        case '2':
        case '6':
            return text.empty() ? "a failure without a text" : "";
        default:
            return "an unknown code: " + outcome;
    }
}

std::string contradictionsOfNumbers(const std::string& events) {
    long last = 0;
    for (std::size_t at = events.find('@'); at != std::string::npos;
         at = events.find('@', at + 1)) {
        const long number = std::strtol(events.c_str() + at + 1, nullptr, 10);
        if (number != 0 && number <= last) {
            return "numbers that do not ascend:" + events;
        }
        last = std::max(last, number);
    }
    return "";
}

template <typename IsUnwanted>
Scenario without(Scenario scenario, IsUnwanted isUnwanted) {
    Steps& steps = scenario.steps;
    steps.erase(std::remove_if(steps.begin(), steps.end(), isUnwanted), steps.end());
    return scenario;
}

// Each command line on its own: files are read again by every parse behind the one that names them.
std::string differencesAsOptionFiles(const Scenario& scenario) {
    std::string differences;
    for (const Step& parse : scenario.steps) {
        const auto isAnother = [&parse](const Step& step) {
            return isParse(step) && step.line != parse.line;
        };
        differences += isParse(parse) ? differencesAsOptionFile(without(scenario, isAnother)) : "";
    }
    return differences;
}

}  // namespace

std::string contradictions(const Scenario& scenario, const Answers& seen) {
    for (const Answer& answer : seen) {
        if (startsWith(answer.text, "the text '") ||
            startsWith(answer.text, "fields that do not")) {
            return answer.text;
        }
    }
    for (const Step& step : scenario.steps) {
        const auto isOutcome = [&](const Answer& answer) {
            return answer.line == step.line && answer.kind == Kind::outcome;
        };
        const auto last = std::find_if(seen.rbegin(), seen.rend(), isOutcome);
        const std::string wrong =
            isParse(step) && last != seen.rend() ? contradictionOf(scenario, last->text) : "";
        if (!wrong.empty()) {
            return wrong;
        }
    }
    return "";
}

std::string differencesWhenHeard(const Scenario& scenario, const Answers& seen) {
    const Answers heardToo = play(heard(scenario));
    const std::string found = difference("Heard by one more:", heardToo, seen, {Kind::event});
    const bool isSimple = !hasStep(scenario, {"on", "add", "left"});
    return !found.empty() || !isSimple ? found
                                       : contradictionsOfNumbers(textOf(
                                             heardToo, {Kind::log, Kind::warning, Kind::outcome}));
}

std::string differencesAsText(const Scenario& scenario, const Answers& seen) {
    const Answers found = play(rewritten(
        scenario, [](const Step& step) { return canBeLines(step) ? asText(step) : Steps{step}; }));
    return hasFailedInAddition(found)
               ? ""
               : difference("As a text:", found, seen, {Kind::log, Kind::assertion});
}

std::string differencesAsOptionFile(const Scenario& scenario) {
    Scenario first = heard(scenario);
    const auto begin = std::find_if(first.steps.begin(), first.steps.end(), isParse);
    if (hasStep(scenario, {"on"}) || begin == first.steps.end() || !canBeLines(*begin)) {
        return "";
    }
    first.steps.erase(std::find_if(begin + 1, first.steps.end(), isParse), first.steps.end());
    const auto instead = [&](Steps (*rewrite)(const Step&)) {
        return play(rewritten(first, [rewrite](const Step& step) {
            return step.verb == "args" ? rewrite(step) : Steps{step};
        }));
    };
    const Answers beside = instead(besideOptionFile);
    if (!namesOneFile(beside) || hasFailedInAddition(beside)) {
        return "";
    }
    const Answers found = instead(asOptionFile);
    return difference("As an option file:", found, beside, {Kind::log, Kind::assertion});
}

std::string differencesInOtherWays(const Scenario& scenario) {
    const auto isAboutHandlers = [](const Step& step) {
        return isAmong(step.verb, {"add", "remove", "on"});
    };
    std::string differences;
    for (const Scenario& one : {scenario, without(scenario, isAboutHandlers)}) {
        const Answers seen = play(one);
        differences += differencesWhenHeard(one, seen);
        // The defaults of a text are drawn by a parse of their own, which may go well to its end.
        if (!hasStep(one, {"left"})) {
            differences += differencesAsText(one, seen) + differencesAsOptionFiles(one);
        }
    }
    return differences;
}

}  // namespace zarn_3_3::testing_support
