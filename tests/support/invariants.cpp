#include "support/invariants.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <regex>

#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool hasDeed(const Scenario& scenario, const std::string& deed) {
    return std::any_of(scenario.steps.begin(), scenario.steps.end(), [&](const Step& step) {
        return step.verb == "on" &&
               std::find(step.words.begin(), step.words.end(), deed) != step.words.end();
    });
}

// Events in a row are in one line.
std::string textOf(const Answers& answers, std::initializer_list<Kind> unwanted) {
    std::string text;
    Kind before = Kind::outcome;
    for (const Answer& answer : answers) {
        if (std::find(unwanted.begin(), unwanted.end(), answer.kind) == unwanted.end()) {
            const bool goesOn = before == Kind::event && answer.kind == Kind::event;
            text += (goesOn ? "; " : "\n") + answer.text;
            before = answer.kind;
        }
    }
    return text;
}

std::string difference(const char* what, const std::string& found, const std::string& expected) {
    return found == expected
               ? ""
               : std::string(what) + "\n--- expected" + expected + "\n--- found" + found;
}

template <typename IsUnwanted>
Scenario without(Scenario scenario, IsUnwanted isUnwanted) {
    std::vector<Step>& steps = scenario.steps;
    steps.erase(std::remove_if(steps.begin(), steps.end(), isUnwanted), steps.end());
    return scenario;
}

// What a scenario itself can bring about, beside its handlers.
const char* const knownOutcomes =
    "0|[26] .+|no parser|threw .*|3 The result is null|3 The argument vector is null|"
    "3 The sequence numbers are used up|3 std::bad_cast|"
    "3 vector::_M_range_check: __n .which is 0. >= this->size.. .which is 0.";

bool isKnown(const Scenario& scenario, const std::string& outcome) {
    const std::string more = std::string(hasDeed(scenario, "refuse") ? "|1 .+" : "") +
                             (hasDeed(scenario, "throw") ? "|3.*" : "");
    return std::regex_match(outcome, std::regex(knownOutcomes + more));
}

struct Played : Stage {
    Played(const Scenario& scenario, Way how) : Stage(Console::observed, how) {
        for (const Step& step : scenario.steps) {
            perform(step);
        }
    }
};

const std::initializer_list<Kind> unalike{Kind::log, Kind::assertion};

std::string differencesWhenHeard(const Scenario& scenario, const Answers& seen) {
    const Played heard(scenario, Way::heard);
    const bool isSimple = !hasStep(scenario, {"on", "add", "left"});
    const bool isAscending =
        std::is_sorted(heard.numbers.begin(), heard.numbers.end(), std::less_equal<>());
    return difference("Heard by one more:",
                      textOf(heard.observer.answers, {}),
                      textOf(seen, {}) + (isSimple && !isAscending ? "\nascending numbers" : ""));
}

std::string differencesAsText(const Scenario& scenario, const Answers& seen) {
    const Played found(scenario, Way::asText);
    return found.isComparable
               ? difference(
                     "As a text:", textOf(found.observer.answers, unalike), textOf(seen, unalike))
               : "";
}

// Each command line on its own: every parse reads all files that the result names, so
// that there may be but one.
std::string differencesAsOptionFiles(const Scenario& scenario) {
    std::string differences;
    for (const Step& parse : scenario.steps) {
        const auto isAnother = [&parse](const Step& step) {
            return isParse(step) && step.line != parse.line;
        };
        if (parse.verb == "args") {
            const Scenario one = without(scenario, isAnother);
            const Played behind(one, Way::behindFile);
            if (behind.isComparable && behind.filesNamed == 1) {
                const Played found(one, Way::asFile);
                differences += difference("As an option file:",
                                          textOf(found.observer.answers, unalike),
                                          textOf(behind.observer.answers, unalike));
            }
        }
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
        if (isParse(step) && last != seen.rend() && !isKnown(scenario, last->text)) {
            return "unknown: " + last->text;
        }
    }
    return "";
}

std::string differencesInOtherWays(const Scenario& scenario) {
    const auto isAboutHandlers = [](const Step& step) {
        return isAmong(step.verb, {"add", "remove", "on"});
    };
    std::string differences;
    const Scenario unheard = without(scenario, isAboutHandlers);
    for (const Scenario& one : {scenario, unheard}) {
        const Answers seen = play(one);
        differences += differencesWhenHeard(one, seen);
        // The defaults of a text are drawn by a parse of their own, which may go well to its end.
        differences += hasStep(one, {"left"}) ? "" : differencesAsText(one, seen);
    }
    return differences + (hasStep(unheard, {"left"}) ? "" : differencesAsOptionFiles(unheard));
}

}  // namespace zarn_3_3::testing_support
