// Plays scenarios: play [--record] FILE...
//
// Compares what is seen with the answers in the files, and shows where they differ. With --record
// it writes what is seen into the files instead.

#include <fstream>
#include <iostream>
#include <sstream>

#include "support/scenario.h"
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

// Shows the steps that were answered otherwise; how many they are.
int compare(const std::string& file, const Scenario& scenario, const Answers& seen) {
    int differences = 0;
    int last = 0;
    for (const Step& step : scenario.steps) {
        const std::string expected = answersAt(step.line, scenario.expected, "");
        if (step.line != last && expected != answersAt(step.line, seen, "")) {
            ++differences;
            std::cerr << file << ":" << step.line << ": " << scenario.title << ": " << step.verb
                      << "\n"
                      << answersAt(step.line, scenario.expected, "  expected > ")
                      << answersAt(step.line, seen, "  seen     > ");
        }
        last = step.line;
    }
    return differences;
}

// How many steps were answered otherwise than the file says.
int playFile(const std::string& file, bool isRecording) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    Answers all;
    int differences = 0;
    for (const Scenario& scenario : readScenarios(text.str())) {
        const Answers seen = play(scenario);
        all.insert(all.end(), seen.begin(), seen.end());
        if (!isRecording) {
            differences += compare(file, scenario, seen);
        }
    }
    if (all.empty()) {
        throw std::invalid_argument("no scenario is answered");
    }
    if (isRecording) {
        std::ofstream(file, std::ios::binary) << withAnswers(text.str(), all);
    }
    return differences;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> files(argv + 1, argv + argc);
    const bool isRecording = !files.empty() && files[0] == "--record";
    files.erase(files.begin(), files.begin() + (isRecording ? 1 : 0));
    if (files.empty()) {
        std::cerr << "Usage: play [--record] FILE...\n";
        return 2;
    }
    int differences = 0;
    for (const std::string& file : files) {
        try {
            differences += playFile(file, isRecording);
        } catch (const std::invalid_argument& bad) {
            std::cerr << file << ":" << bad.what() << "\n";
            return 2;
        }
    }
    return differences == 0 ? 0 : 1;
}
