// Plays scenarios: play [MODE] FILE...
//
// Compares what is seen with the answers in the files, and shows where they differ. With --record
// it writes what is seen into the files first. Other modes play them otherwise, and judge what
// comes of it: --ways heard by one more or nobody, as texts and as option files; --memory STRIDE
// while each allocation (or each of so many) fails in its turn; --files STRIDE the same with calls
// that read files; --threads on several at once, for the thread sanitizer.

#include <fstream>
#include <functional>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "disturbers/disturbances.h"
#include "disturbers/threads.h"
#include "support/invariants.h"
#include "support/stage.h"

namespace {

using namespace zarn_3_3::testing_support;

std::string answersAt(int line, const Answers& answers, const char* head) {
    std::string text;
    for (const Answer& answer : answers) {
        text += answer.line == line ? head + answer.text + "\n" : "";
    }
    return text.empty() ? std::string(head) + "(no answer)\n" : text;
}

// The steps that were answered otherwise than the file says.
std::string differences(const Scenario& scenario) {
    const Answers seen = play(scenario);
    std::string text;
    int last = 0;
    for (const Step& step : scenario.steps) {
        const std::string expected = answersAt(step.line, scenario.expected, "");
        if (step.line != last && expected != answersAt(step.line, seen, "")) {
            text += "\n" + std::to_string(step.line) + ": " + step.verb + "\n" +
                    answersAt(step.line, scenario.expected, "  expected > ") +
                    answersAt(step.line, seen, "  seen     > ");
        }
        last = step.line;
    }
    return text;
}

std::string contentOf(const std::string& file) {
    std::ostringstream text;
    if (!(text << std::ifstream(file, std::ios::binary).rdbuf())) {
        throw std::invalid_argument("nothing to read");
    }
    return text.str();
}

// `judge` says what does not hold of a scenario, or nothing when all does. Returns what main
// returns.
int judgeFiles(const Words& files, const std::function<std::string(const Scenario&)>& judge) {
    int scenarios = 0;
    int violated = 0;
    for (const std::string& file : files) {
        try {
            for (const Scenario& scenario : readScenarios(contentOf(file))) {
                const std::string wrong = judge(scenario);
                ++scenarios;
                if (!wrong.empty()) {
                    ++violated;
                    std::clog << file << ":" << scenario.line << ": " << scenario.title << ": "
                              << wrong << "\n";
                }
            }
        } catch (const std::invalid_argument& bad) {
            ++violated;
            std::clog << file << ":" << bad.what() << "\n";
        }
    }
    std::clog << scenarios << " scenarios, " << violated << " of them violated\n";
    return scenarios > 0 && violated == 0 ? 0 : 1;
}

void record(const std::string& file) {
    const std::string text = contentOf(file);
    Answers all;
    for (const Scenario& scenario : readScenarios(text)) {
        const Answers seen = play(scenario);
        all.insert(all.end(), seen.begin(), seen.end());
    }
    if (all.empty()) {
        throw std::invalid_argument("no scenario is answered");
    }
    std::ofstream(file, std::ios::binary) << withAnswers(text, all);
}

// What `wrong` says of disturbed plays; failures are counted.
int judgeDisturbed(Words words, std::string (*wrong)(const Scenario&, long, long&)) {
    const long stride = std::stol(words.at(0));
    words.erase(words.begin());
    long failures = 0;
    const int code = judgeFiles(
        words, [&](const Scenario& scenario) { return wrong(scenario, stride, failures); });
    std::clog << failures << " calls failed\n";
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    Words words(argv + 1, argv + argc);
    const std::string mode = !words.empty() && startsWith(words[0], "--") ? words[0] : "";
    words.erase(words.begin(), words.begin() + (mode.empty() ? 0 : 1));
    if (mode == "--memory" || mode == "--files") {
        return judgeDisturbed(words, mode == "--memory" ? wrongWithoutMemory : wrongWithoutFiles);
    }
    for (const std::string& file : mode == "--record" ? words : Words()) {
        record(file);
    }
    return judgeFiles(words,
                      mode == "--ways"      ? differencesInOtherWays
                      : mode == "--threads" ? wrongOnThreads
                                            : differences);
}
