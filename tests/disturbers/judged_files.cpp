#include "disturbers/judged_files.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace zarn_3_3::testing_support {

std::string contentOf(const char* file) {
    std::ostringstream text;
    if (!(text << std::ifstream(file, std::ios::binary).rdbuf())) {
        throw std::invalid_argument("nothing to read");
    }
    return text.str();
}

int judgeFiles(int argc, char** argv, const Judge& judge) {
    int scenarios = 0;
    int violated = 0;
    for (int i = 1; i < argc; ++i) {
        try {
            for (const Scenario& scenario : readScenarios(contentOf(argv[i]))) {
                const std::string wrong = judge(scenario);
                ++scenarios;
                if (!wrong.empty()) {
                    ++violated;
                    std::cerr << argv[i] << ":" << scenario.line << ": " << scenario.title << ": "
                              << wrong << "\n";
                }
            }
        } catch (const std::invalid_argument& bad) {
            ++violated;
            std::cerr << argv[i] << ":" << bad.what() << "\n";
        }
    }
    std::cout << scenarios << " scenarios, " << violated << " of them violated\n";
    return scenarios > 0 && violated == 0 ? 0 : 1;
}

bool isAmong(const std::string& word, std::initializer_list<const char*> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool hasStep(const Scenario& scenario, std::initializer_list<const char*> verbs) {
    return std::any_of(scenario.steps.begin(), scenario.steps.end(), [&verbs](const Step& step) {
        return isAmong(step.verb, verbs);
    });
}

}  // namespace zarn_3_3::testing_support
