#include "disturbers/judged_files.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace zarn_3_3::testing_support {

int judgeFiles(int argc, char** argv, const Judge& judge) {
    int scenarios = 0;
    int violated = 0;
    for (int i = 1; i < argc; ++i) {
        std::ostringstream text;
        text << std::ifstream(argv[i], std::ios::binary).rdbuf();
        for (const Scenario& scenario : readScenarios(text.str())) {
            const std::string wrong = judge(scenario);
            ++scenarios;
            if (!wrong.empty()) {
                ++violated;
                std::cerr << argv[i] << ":" << scenario.line << ": " << scenario.title << ": "
                          << wrong << "\n";
            }
        }
    }
    std::cout << scenarios << " scenarios, " << violated << " of them violated\n";
    return scenarios > 0 && violated == 0 ? 0 : 1;
}

}  // namespace zarn_3_3::testing_support
