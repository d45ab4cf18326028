#include "support/invariants.h"

#include <algorithm>
#include <functional>
#include <initializer_list>

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

class WayOfPlaying {
public:
    WayOfPlaying(const Scenario& scenario, Way way) : stage(Console::observed, way) {
        for (const Step& step : scenario.steps) {
            stage.perform(step);
        }
    }

    bool isComparable() const { return stage.isComparable; }

    // Every parse reads all files that the result names.
    bool namesOneFile() const { return stage.filesNamed == 1; }

    bool isAscending() const {
        return std::is_sorted(stage.numbers.begin(), stage.numbers.end(), std::less_equal<>());
    }

    std::string all() const { return textOf(stage.observer.answers, {}); }
    std::string tellingAll() const {
        return textOf(stage.observer.answers, {Kind::log, Kind::assertion});
    }

private:
    Stage stage;
};

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

std::string differencesWhenHeard(const Scenario& scenario, const Answers& seen) {
    const WayOfPlaying heard(scenario, Way::heard);
    const bool isSimple = !hasStep(scenario, {"on", "add", "left"});
    return difference("Heard by one more:", heard.all(), textOf(seen, {})) +
           (isSimple && !heard.isAscending() ? "Numbers do not ascend" : "");
}

std::string differencesAsText(const Scenario& scenario, const Answers& seen) {
    const WayOfPlaying found(scenario, Way::asText);
    const std::string right = textOf(seen, {Kind::log, Kind::assertion});
    return found.isComparable() ? difference("As a text:", found.tellingAll(), right) : "";
}

// Each command line on its own: files are read again by every parse behind the one that names them.
std::string differencesAsOptionFiles(const Scenario& scenario) {
    std::string differences;
    for (const Step& parse : scenario.steps) {
        const auto isAnother = [&parse](const Step& step) {
            return isParse(step) && step.line != parse.line;
        };
        if (parse.verb == "args") {
            const Scenario one = without(scenario, isAnother);
            const WayOfPlaying behind(one, Way::behindFile);
            if (behind.isComparable() && behind.namesOneFile()) {
                const WayOfPlaying found(one, Way::asFile);
                differences +=
                    difference("As an option file:", found.tellingAll(), behind.tellingAll());
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
        const std::string wrong =
            isParse(step) && last != seen.rend() ? contradictionOf(scenario, last->text) : "";
        if (!wrong.empty()) {
            return wrong;
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
