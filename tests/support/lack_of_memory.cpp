#include "support/lack_of_memory.h"

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

#include "support/failing_new.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool isDisturbed(const Step& step) {
    return isParse(step) || step.verb == "help" || step.verb == "topic" ||
           step.verb == "modifiers" || step.verb == "globals";
}

// Plans that count, or change something, go another way when a parse has broken off.
bool isCountedPlan(const Step& step) {
    const auto colon = std::find(step.words.begin(), step.words.end(), ":");
    return step.verb == "on" && (step.words[1].compare(0, 4, "nth=") == 0 ||
                                 (colon[1] != "refuse" && colon[1] != "throw"));
}

// The answers to each step, with a shortage in force during one of them.
std::vector<Answers> play(const Scenario& scenario, std::size_t disturbed, Countdown& shortage) {
    std::vector<Answers> answers;
    Stage stage;
    for (const Step& step : scenario.steps) {
        const bool isStruck = answers.size() == disturbed;
        Countdown& failing = memory;
        failing = isStruck ? shortage : Countdown();
        stage.perform(step);
        shortage = isStruck ? failing : shortage;
        memory.left = 0;
        answers.push_back(std::exchange(stage.observer.answers, {}));
    }
    return answers;
}

std::string textOf(const Answers& answers, Kind wanted) {
    std::string text;
    for (const Answer& answer : answers) {
        text += answer.kind == wanted ? (text.empty() ? "" : "; ") + answer.text : "";
    }
    return text;
}

bool isEqual(const Answers& one, const Answers& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](auto& a, auto& b) {
        return a.kind == b.kind && a.text == b.text;
    });
}

// The text of a failure takes memory as well.
bool saysSo(const Step& step, const std::string& found, const std::string& right) {
    if (isParse(step)) {
        return found == "3" || found == "3 std::bad_alloc" || found == right.substr(0, 1);
    }
    return found == "(nothing)" || found.find("Unknown error handled.") != std::string::npos;
}

// Behind the step: what it stored, the step once more on the same result, and on a new one.
constexpr std::size_t stored = 1;
constexpr std::size_t goneOn = 2;

Scenario repeated(Scenario scenario, std::size_t index) {
    const Step again = scenario.steps[index];
    std::vector<Step> behind{
        {again.line, "show", {}},
        again
    };
    if (isParse(again)) {
        behind.push_back({again.line, "left", {"1000000"}});
        behind.push_back({again.line, "result", {"main"}});
        behind.push_back(again);
    }
    scenario.steps.insert(scenario.steps.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                          behind.begin(),
                          behind.end());
    return scenario;
}

// What goes on with a result that broke off is its own; and the text of the last failure stays.
bool isToBeEqual(const Scenario& scenario, std::size_t index, std::size_t other, bool isRight) {
    const bool isOfResult = isParse(scenario.steps[index]) &&
                            (other == index + goneOn || (other == index + stored && !isRight));
    return other != index && !isOfResult && scenario.steps[other].verb != "error";
}

std::string report(const char* what, const Step& step, const Answers& found, const Answers& right) {
    const auto all = [](const Answers& answers) {
        return textOf(answers, Kind::event) + "\n" + textOf(answers, Kind::outcome) + "\n";
    };
    return std::string(what) + " of '" + step.verb + "' in line " + std::to_string(step.line) +
           "\n--- expected\n" + all(right) + "--- found\n" + all(found);
}

std::string judge(const Scenario& scenario,
                  std::size_t index,
                  const std::vector<Answers>& found,
                  const std::vector<Answers>& right) {
    const Step& step = scenario.steps[index];
    const std::string outcome = textOf(found[index], Kind::outcome);
    const std::string rightOutcome = textOf(right[index], Kind::outcome);
    const std::string events = textOf(found[index], Kind::event);
    const bool isRight = outcome == rightOutcome;
    if ((!isRight && !saysSo(step, outcome, rightOutcome)) ||
        textOf(right[index], Kind::event).compare(0, events.size(), events) != 0) {
        return report("Without memory, the answer", step, found[index], right[index]);
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (isToBeEqual(scenario, index, i, isRight) && !isEqual(found[i], right[i])) {
            const Step& other = scenario.steps[i];
            return report("Behind a lack of memory, the answer", other, found[i], right[i]);
        }
    }
    return "";
}

}  // namespace

std::string wrongWithoutMemory(const Scenario& scenario, const Outage& outage) {
    std::vector<std::size_t> indexes;
    for (std::size_t i = 0; i < scenario.steps.size(); ++i) {
        if (isDisturbed(scenario.steps[i])) {
            indexes.push_back(i);
        }
    }
    const bool isCounted = std::any_of(scenario.steps.begin(), scenario.steps.end(), isCountedPlan);
    if (indexes.empty() || isCounted) {
        return "";
    }
    const std::size_t index = indexes[outage.step % indexes.size()];
    const Scenario twice = repeated(scenario, index);
    constexpr long enough = LONG_MAX;
    Countdown none{enough};
    const std::vector<Answers> right = play(twice, index, none);
    const std::size_t taken = static_cast<std::size_t>(enough - none.left);
    if (taken == 0) {
        return "";
    }
    Countdown shortage{static_cast<long>(outage.allocation % taken) + 1, outage.isLasting};
    return judge(twice, index, play(twice, index, shortage), right);
}

}  // namespace zarn_3_3::testing_support
