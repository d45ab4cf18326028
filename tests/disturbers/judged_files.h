// What programs that play and judge scenarios have in common.

#ifndef ZARN_TESTS_DISTURBERS_JUDGED_FILES_H
#define ZARN_TESTS_DISTURBERS_JUDGED_FILES_H

#include <functional>
#include <string>

#include "support/scenario.h"

namespace zarn_3_3::testing_support {

// Throws std::invalid_argument when there is none.
std::string contentOf(const std::string& file);

// `judge` says what does not hold of a scenario, or nothing when all does.
using Judge = std::function<std::string(const Scenario& scenario)>;

// Judges every scenario in the files, and shows what does not hold. Returns what main returns.
int judgeFiles(const Words& files, const Judge& judge);

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_DISTURBERS_JUDGED_FILES_H
