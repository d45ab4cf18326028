#include "disturbers/disturbed_play.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <utility>

#include "recognizers/argument_parser.h"

namespace zarn_3_3::testing_support {
namespace {

bool isAmong(const std::string& word, std::initializer_list<const char*> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

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
    std::vector<Step> all(fixed / 2, declaration);
    for (const std::string& word : step.words) {
        const std::string key = word.substr(0, word.find('='));
        if (declaration.words.size() < fixed || isAmong(key, {"help", "section", "of"})) {
            declaration.words.push_back(word);
        } else {
            all.push_back({step.line, "set", {word}});
        }
    }
    std::fill_n(all.begin(), fixed / 2, declaration);
    return all;
}

Answers take(Stage& stage) { return std::exchange(stage.observer.answers, {}); }

Answers perform(Stage& stage, const Step& step) {
    stage.perform(step);
    return take(stage);
}

// Without the last error that the log quotes: a failure has left its own there.
std::string textOf(const Answers& answers) {
    std::string text;
    for (const Answer& answer : answers) {
        const bool isLog = answer.kind == Kind::log;
        text += (text.empty() ? "" : "\n") +
                answer.text.substr(0, isLog ? answer.text.find(", message: ") : std::string::npos);
    }
    return text;
}

// All that help and questions tell of a vocabulary.
std::string declared(Stage& stage, const Words& names) {
    stage.perform({0, "help", {}});
    stage.perform({0, "help", {"hidden"}});
    for (const std::string& name : names) {
        stage.perform({0, "declared", {name}});
        stage.perform({
            0, "declared", {name, "action"}
        });
    }
    return textOf(take(stage));
}

// Each with its values.
Words occurrences(Stage& stage, const char* name) {
    IParseResult& result = *stage.result;
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

std::map<std::string, Words> stored(Stage& stage, const Words& names) {
    std::map<std::string, Words> all;
    const auto isInUse = [&stage](const auto& named) { return named.second == stage.result; };
    if (std::any_of(stage.results.begin(), stage.results.end(), isInUse)) {
        for (const std::string& name : names) {
            all[name] = occurrences(stage, name.c_str());
        }
    }
    return all;
}

// Whether of every name the first occurrences are there, each as a whole.
template <typename Stored>
bool isBeginning(const Stored& part, const Stored& whole) {
    return std::all_of(part.begin(), part.end(), [&whole](const auto& named) {
        const Words& all = whole.at(named.first);
        return named.second.size() <= all.size() &&
               std::equal(named.second.begin(), named.second.end(), all.begin());
    });
}

// The same parse once more, which does not know of the first one.
Answers again(Stage& stage, const Step& step) {
    stage.beginNumbers(1);
    stage.perform({step.line, "result", {"again"}});
    stage.perform(step);
    stage.perform({step.line, "show", {}});
    return take(stage);
}

// The code and the text of a parse. Assertions stand behind it.
Answers::const_iterator conclusion(const Answers& answers) {
    const auto isLast = [](const Answer& answer) { return answer.kind == Kind::outcome; };
    return std::find_if(answers.rbegin(), answers.rend(), isLast).base() - 1;
}

template <typename Act>
void onStage(const Border& border, Act act) {
    const int before = IArgumentParser::m_idx;
    {
        Stage stage(border);
        act(stage);
    }
    IArgumentParser::m_idx = before;
}

class DisturbedPlay {
public:
    DisturbedPlay(const Undisturbed& undisturbed, Disturbance& disturbing, Stage& played)
        : reference(undisturbed), disturbance(disturbing), stage(played) {}

    // Says what does not hold.
    std::string run(Until until) {
        for (; index < reference.steps.size() && wrong.empty() && !isOver; ++index) {
            const Answers found = perform(stage, step());
            if (until == Until::endOfScenario) {
                expect(isSane(found) || step().verb == "wrap", "answer to the end", textOf(found));
            } else if (isBehind || !disturbance.hasStruck()) {
                expect(isRight(found) || (isErrorLost && step().verb == "error"),
                       "answer",
                       textOf(found));
            } else {
                isBehind = true;
                disturbance.end();
                judge(found);
            }
        }
        return wrong;
    }

private:
    const Step& step() const { return reference.steps[index]; }
    const Undisturbed::Right& right() const { return reference.rights[index]; }
    bool isRight(const Answers& found) const { return textOf(found) == textOf(right().answers); }

    void expect(bool holds, const char* what, const std::string& found) {
        if (!holds && wrong.empty()) {
            wrong = "'" + step().verb + "' in line " + std::to_string(step().line) + ", " + what +
                    "\n--- found\n" + found + "\n--- undisturbed\n" + textOf(right().answers);
        }
    }

    // Whatever is lacking, nothing escapes, and no text that was handed out changes.
    bool isSane(const Answers& found) const {
        const std::string known = textOf(right().answers);
        return std::none_of(found.begin(), found.end(), [&known](const Answer& answer) {
            const std::string start = answer.text.substr(0, 6);
            const bool isStrange =
                answer.kind == Kind::assertion || isAmong(start, {"threw ", "the te", "fields"});
            return isStrange && known.find(answer.text) == std::string::npos;
        });
    }

    void judge(const Answers& found) {
        if (isParse(step())) {
            judgeParse(found);
        } else if (isDeclaration(step())) {
            judgeDeclaration(found);
        } else if (!isRight(found)) {
            const std::string told = textOf(found);
            expect(mayAnswer(told, textOf(right().answers)), "disturbed answer", told);
            isErrorLost = isAmong(step().verb, {"help", "topic", "modifiers", "globals"});
            repeat();
        }
    }

    bool mayAnswer(const std::string& found, const std::string& expected) const {
        return disturbance.mayAnswer(step().verb, found, expected);
    }

    // Nothing tells whether it was done but what is declared then. A declaration that failed may
    // leave its section behind.
    void judgeDeclaration(const Answers& found) {
        expect(isSane(found), "disturbed answer", textOf(found));
        isOver = isItem(step()) && step().words[0].empty();  // nobody sees such an item
        if (declared(stage, reference.names) != right().after || right().before == right().after) {
            repeat();
        }
        const std::string now = declared(stage, reference.names);
        expect(now == right().after, "declared", now);
    }

    void repeat() {
        const Answers repeated = perform(stage, step());
        expect(isRight(repeated), "repeated answer", textOf(repeated));
    }

    // What handlers do may fail where the parse around them does not, and without a word.
    void judgeParse(const Answers& found) {
        expect(isSane(found), "disturbed answer", textOf(found));
        const bool isSimple =
            std::all_of(reference.steps.begin(), reference.steps.end(), isSimplePlan);
        isOver = !isSimple || !isRight(found);
        if (isSimple && isOver) {
            judgeBrokenParse(found);
        }
    }

    void judgeBrokenParse(const Answers& found) {
        const auto end = conclusion(found);
        const std::string toTell = conclusion(right().answers)->text;
        expect(mayAnswer(end->text, toTell), "disturbed answer", textOf(found));
        // A file that could not be told from others may be read once more before it is refused.
        if (end->text[0] != '6' || toTell[0] != '6') {
            const std::string heard = textOf({found.begin(), end});
            expect(textOf(right().answers).rfind(heard, 0) == 0, "disturbed events", textOf(found));
            const auto left = stored(stage, reference.ownNames);
            expect(isBeginning(left, right().stored), "stored", textOf(found));
        }
        const std::string repeated = textOf(again(stage, step()));
        expect(repeated == textOf(right().again), "parsed again", repeated);
    }

    const Undisturbed& reference;
    Disturbance& disturbance;
    Stage& stage;
    std::size_t index = 0;
    bool isBehind = false;     // the disturbed step
    bool isOver = false;       // what follows depends on what the disturbed step stored
    bool isErrorLost = false;  // help that fails is the last error
    std::string wrong;
};

}  // namespace

Undisturbed::Undisturbed(const Scenario& scenario) {
    for (const Step& step : scenario.steps) {
        for (const Step& single : singleSteps(step)) {
            steps.push_back(single);
        }
        if (isItem(step)) {
            names.push_back(step.words[0].substr(0, step.words[0].find(',')));
        }
    }
    // What other items store under a synonym may be replaced.
    const auto isSynonym = [this](const std::string& name) {
        return std::any_of(steps.begin(), steps.end(), [&name](const Step& step) {
            return step.verb == "set" && step.words[0] == "synonym=" + name;
        });
    };
    std::remove_copy_if(names.begin(), names.end(), std::back_inserter(ownNames), isSynonym);
    onStage({}, [this](Stage& stage) {
        for (const Step& step : steps) {
            Right& right = rights.emplace_back();
            const bool isProbed = isDeclaration(step) && stage.parser != nullptr;
            right.before = isProbed ? declared(stage, names) : "";
            right.answers = perform(stage, step);
            right.after = isProbed ? declared(stage, names) : "";
        }
    });
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (isParse(steps[i])) {
            onStage({}, [this, i](Stage& stage) {
                for (std::size_t before = 0; before <= i; ++before) {
                    perform(stage, steps[before]);
                }
                rights[i].stored = testing_support::stored(stage, ownNames);
                rights[i].again = testing_support::again(stage, steps[i]);
            });
        }
    }
}

std::string disturbEach(const Undisturbed& undisturbed,
                        Disturbance& disturbance,
                        Until until,
                        long stride,
                        long& failures) {
    const Border border{[&disturbance](bool isInward) { disturbance.cross(isInward); }};
    // Where there are very many, as a thousand files take, not each.
    for (long nth = 1;; nth += stride + nth / 64 * 16) {
        std::string wrong;
        disturbance.begin(nth);
        onStage(border, [&](Stage& stage) {
            wrong = DisturbedPlay(undisturbed, disturbance, stage).run(until);
        });
        disturbance.end();
        const long left = disturbance.leftBehind();
        if (!wrong.empty() || left != 0) {
            return "call " + std::to_string(nth) + " fails, " + std::to_string(left) +
                   " are left behind: " + wrong + "\n";
        }
        if (!disturbance.hasStruck()) {
            return "";
        }
        ++failures;
    }
}

}  // namespace zarn_3_3::testing_support
