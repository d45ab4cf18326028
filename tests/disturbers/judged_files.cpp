#include "disturbers/judged_files.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace zarn_3_3::testing_support {

std::string contentOf(const std::string& file) {
    std::ostringstream text;
    if (!(text << std::ifstream(file, std::ios::binary).rdbuf())) {
        throw std::invalid_argument("nothing to read");
    }
    return text.str();
}

int judgeFiles(const Words& files, const Judge& judge) {
    int scenarios = 0;
    int violated = 0;
    for (const std::string& file : files) {
        try {
            for (const Scenario& scenario : readScenarios(contentOf(file))) {
                const std::string wrong = judge(scenario);
                ++scenarios;
                if (!wrong.empty()) {
                    ++violated;
                    std::cerr << file << ":" << scenario.line << ": " << scenario.title << ": "
                              << wrong << "\n";
                }
            }
        } catch (const std::invalid_argument& bad) {
            ++violated;
            std::cerr << file << ":" << bad.what() << "\n";
        }
    }
    std::cout << scenarios << " scenarios, " << violated << " of them violated\n";
    return scenarios > 0 && violated == 0 ? 0 : 1;
}

}  // namespace zarn_3_3::testing_support
