#include "disturbers/disturbed_play.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <utility>

#include "support/file_calls_double.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

bool isItem(const Step& step) { return isAmong(step.verb, {"option", "action", "modifier"}); }

bool isDeclaration(const Step& step) {
    return isItem(step) || isAmong(step.verb, {"set", "optionfile"});
}

// Plans that count, or do something, go another way when a parse has broken off.
bool isSimplePlan(const Step& step) {
    const auto colon = std::find(step.words.begin(), step.words.end(), ":");
    return step.verb != "on" ||
           (isAmong(colon[1], {"refuse", "throw"}) && step.words[1].rfind("nth=", 0) != 0);
}

// Each setting becomes a step of its own.
std::vector<Step> singleSteps(const Step& step) {
    if (!isItem(step) && step.verb != "set") {
        return {step};
    }
    const std::size_t fixed = isItem(step) ? 2 : 0;
    Step declaration{step.line, step.verb, {}};
    std::vector<Step> settings;
    for (const std::string& word : step.words) {
        const std::string key = word.substr(0, word.find('='));
        if (declaration.words.size() < fixed || isAmong(key, {"help", "section", "of"})) {
            declaration.words.push_back(word);
        } else {
            settings.push_back({step.line, "set", {word}});
        }
    }
    settings.insert(settings.begin(), fixed / 2, declaration);
    return settings;
}

Answers perform(Stage& stage, const Step& step) {
    stage.perform(step);
    return std::exchange(stage.observer.answers, {});
}

// Without the last error that the log quotes: a failure has left its own there.
std::string textOf(const Answers& answers) {
    std::string text;
    for (const Answer& answer : answers) {
        const bool isLog = answer.kind == Kind::log;
        text += (text.empty() ? "" : "\n") +
                answer.text.substr(0, isLog ? answer.text.find(", message:") : std::string::npos);
    }
    return text;
}

std::string ask(Stage& stage, const char* verb, const Words& words) {
    return textOf(perform(stage, {0, verb, words}));
}

// All that help and questions tell of a vocabulary.
std::string declared(Stage& stage, const Words& names) {
    std::string all = ask(stage, "help", {}) + ask(stage, "help", {"hidden"});
    for (const std::string& name : names) {
        all += ask(stage, "declared", {name}) + ask(stage, "declared", {name, "action"});
    }
    return all;
}

// Each with its values. A walk may go on behind the last place that it was asked for.
Words occurrences(IParseResult& result, const Stage& stage, const char* name) {
    std::vector<int> places;
    result.present(name, 0, INT_MAX);
    do {
        places.push_back(result.nextPosition());
    } while (places.back() != INT_MAX);
    Words all;
    for (std::size_t i = 0; places[i] != INT_MAX; ++i) {
        all.push_back(stage.place(places[i]));
        Value value = result.get(name, places[i], places[i + 1]);
        for (; value.text != nullptr && value.position < places[i + 1];
             value = result.next(nullptr)) {
            all.back() += " " + stage.shown(value);
        }
    }
    return all;
}

// Of each name the occurrences in the result in use.
std::vector<Words> stored(const Stage& stage, const Words& names) {
    std::vector<Words> all;
    const auto isInUse = [&stage](const auto& named) { return named.second == stage.result; };
    if (std::any_of(stage.results.begin(), stage.results.end(), isInUse)) {
        for (const std::string& name : names) {
            all.push_back(occurrences(*stage.result, stage, name.c_str()));
        }
    }
    return all;
}

// Whether of every name the first occurrences are there, each as a whole.
bool isBeginning(const std::vector<Words>& part, const std::vector<Words>& whole) {
    const auto begins = [](const Words& some, const Words& all) {
        return some.size() <= all.size() && std::equal(some.begin(), some.end(), all.begin());
    };
    return std::equal(part.begin(), part.end(), whole.begin(), begins);
}

// The same parse once more, which does not know of the first one.
std::string again(Stage& stage, const Step& step) {
    stage.beginNumbers(1);
    ask(stage, "result", {"again"});
    return textOf(perform(stage, step)) + "\n" + ask(stage, "show", {});
}

// The code and the text of a parse. Assertions stand behind it.
Answers::const_iterator conclusion(const Answers& answers) {
    const auto isLast = [](const Answer& answer) { return answer.kind == Kind::outcome; };
    return std::find_if(answers.rbegin(), answers.rend(), isLast).base() - 1;
}

class DisturbedPlay {
public:
    DisturbedPlay(const Undisturbed& undisturbed, const Disturbance& disturbing)
        : reference(undisturbed), disturbance(disturbing) {}

    // Says what does not hold.
    std::string run() {
        for (; index < reference.steps.size() && wrong.empty() && !isOver; ++index) {
            const Answers found = perform(stage, step());
            if (disturbance.lasts == Lasts::untilEndOfScenario) {
                expect(isSane(found), "answer to the end", textOf(found));
            } else if (isBehind || !disturbance.calls.hasStruck) {
                const bool isRight = textOf(found) == rightText();
                expect(isRight || (isErrorLost && step().verb == "error"), "answer", textOf(found));
            } else {
                isBehind = true;
                disturbance.calls.left = 0;
                judge(found);
            }
        }
        return wrong;
    }

private:
    const Step& step() const { return reference.steps[index]; }
    const Undisturbed::Right& right() const { return reference.rights[index]; }
    std::string rightText() const { return textOf(right().answers); }

    void expect(bool holds, const char* what, const std::string& found) {
        if (!holds && wrong.empty()) {
            wrong = "'" + step().verb + "' in line " + std::to_string(step().line) + ", " + what +
                    "\n--- found\n" + found + "\n--- undisturbed\n" + rightText();
        }
    }

    // Whatever is lacking, nothing escapes, and no text that was handed out changes.
    bool isSane(const Answers& found) const {
        return std::none_of(found.begin(), found.end(), [this](const Answer& answer) {
            const std::string start = answer.text.substr(0, 6);
            const bool isStrange = answer.kind == Kind::assertion ||
                                   isAmong(start, {"the te", "fields"}) ||
                                   (start == "threw " && !mayThrow(step().verb));
            return isStrange && rightText().find(answer.text) == std::string::npos;
        });
    }

    void judge(const Answers& found) {
        const std::string told = textOf(found);
        if (isParse(step())) {
            judgeParse(found);
        } else if (isDeclaration(step())) {
            expect(isSane(found), "disturbed answer", told);
            finishDeclaration();
        } else {
            isErrorLost = isHelp(step().verb) || step().verb == "result";
            if (told != rightText()) {
                const bool isKnown = disturbance.mayAnswer(step().verb, told, rightText());
                expect(isKnown, "disturbed answer", told);
                repeat();
            }
        }
    }

    // Nothing tells whether it was done but what is declared then. A declaration that failed may
    // leave its section behind.
    void finishDeclaration() {
        isOver = isItem(step()) && step().words[0].empty();  // nobody sees such an item
        if (declared(stage, reference.names) != right().after || right().before == right().after) {
            repeat();
        }
        const std::string now = declared(stage, reference.names);
        expect(now == right().after, "declared", now);
    }

    void repeat() {
        const std::string repeated = textOf(perform(stage, step()));
        expect(repeated == rightText(), "repeated answer", repeated);
    }

    // What handlers do may fail where the parse around them does not, and without a word.
    void judgeParse(const Answers& found) {
        expect(isSane(found), "disturbed answer", textOf(found));
        const bool isSimple =
            std::all_of(reference.steps.begin(), reference.steps.end(), isSimplePlan);
        isOver = !isSimple || textOf(found) != rightText();
        if (isSimple && isOver) {
            judgeBrokenParse(found);
        }
    }

    void judgeBrokenParse(const Answers& found) {
        const auto end = conclusion(found);
        const std::string toTell = conclusion(right().answers)->text;
        const bool isKnown = disturbance.mayAnswer(step().verb, end->text, toTell);
        expect(isKnown, "disturbed answer", textOf(found));
        // A file that could not be told from others may be read once more before it is refused.
        if (end->text[0] != '6' || toTell[0] != '6') {
            const std::string heard = textOf({found.begin(), end});
            expect(rightText().rfind(heard, 0) == 0, "disturbed events", textOf(found));
            const bool isWhole = isBeginning(stored(stage, reference.ownNames), right().stored);
            expect(isWhole, "stored", textOf(found));
        }
        const std::string repeated = again(stage, step());
        expect(repeated == right().again, "parsed again", repeated);
    }

    const Undisturbed& reference;
    const Disturbance& disturbance;
    Stage stage;
    std::size_t index = 0;
    bool isBehind = false;     // the disturbed step
    bool isOver = false;       // what follows depends on what the disturbed step stored
    bool isErrorLost = false;  // a failure of help or of a result is the last error
    std::string wrong;
};

}  // namespace

Undisturbed::Undisturbed(const Scenario& scenario) {
    addSteps(scenario);
    playAll();
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (isParse(steps[i])) {
            playUntil(i);
        }
    }
}

void Undisturbed::addSteps(const Scenario& scenario) {
    for (const Step& step : scenario.steps) {
        const std::vector<Step> singles = singleSteps(step);
        steps.insert(steps.end(), singles.begin(), singles.end());
        if (isItem(step)) {
            names.push_back(step.words[0].substr(0, step.words[0].find(',')));
        } else if (step.verb == "optionfile") {
            names.emplace_back("option-file");
        }
    }
    // What other items store under a synonym may be replaced.
    const auto isSynonym = [this](const std::string& name) {
        return std::any_of(steps.begin(), steps.end(), [&name](const Step& step) {
            return step.verb == "set" && step.words[0] == "synonym=" + name;
        });
    };
    std::remove_copy_if(names.begin(), names.end(), std::back_inserter(ownNames), isSynonym);
}

void Undisturbed::playAll() {
    Stage stage;
    for (const Step& step : steps) {
        Right& right = rights.emplace_back();
        right.before = isDeclaration(step) ? declared(stage, names) : "";
        right.answers = perform(stage, step);
        right.after = isDeclaration(step) ? declared(stage, names) : "";
    }
}

void Undisturbed::playUntil(std::size_t parse) {
    Stage stage;
    for (std::size_t i = 0; i <= parse; ++i) {
        perform(stage, steps[i]);
    }
    rights[parse].stored = stored(stage, ownNames);
    rights[parse].again = again(stage, steps[parse]);
}

std::string disturb(const Undisturbed& undisturbed, const Disturbance& disturbance, long nth) {
    const std::size_t blocks = memory.liveBlocks();
    disturbance.calls = {nth, disturbance.lasts != Lasts::once, false};
    const std::string wrong = DisturbedPlay(undisturbed, disturbance).run();
    disturbance.calls.left = 0;
    if (wrong.empty() && memory.liveBlocks() == blocks && fileCalls.openFiles == 0) {
        return "";
    }
    return "call " + std::to_string(nth) +
           " fails: " + (wrong.empty() ? "something is left behind" : wrong) + "\n";
}

std::string disturbEach(const Undisturbed& undisturbed,
                        const Disturbance& disturbance,
                        long stride,
                        long& failures) {
    // Where there are very many, as a thousand files take, not each.
    for (long nth = 1;; nth += stride + nth / 64 * 16) {
        const std::string wrong = disturb(undisturbed, disturbance, nth);
        if (!wrong.empty() || !disturbance.calls.hasStruck) {
            return wrong;
        }
        ++failures;
    }
}

}  // namespace zarn_3_3::testing_support
