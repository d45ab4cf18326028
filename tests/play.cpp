// Plays scenarios: play [--record] FILE...
//
// Compares what is seen with the answers in the files, and shows where they differ. With --record
// it writes what is seen into the files instead.

#include <fstream>
#include <stdexcept>

#include "disturbers/judged_files.h"
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

void record(const char* file) {
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

}  // namespace

int main(int argc, char** argv) {
    const bool isRecording = argc > 1 && std::string(argv[1]) == "--record";
    for (int i = 2; isRecording && i < argc; ++i) {
        record(argv[i]);
    }
    return judgeFiles(argc - (isRecording ? 1 : 0), argv + (isRecording ? 1 : 0), differences);
}
