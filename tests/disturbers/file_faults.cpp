// Calls that read files fail: file_faults STRIDE FILE...
//
// In every scenario of the files each call (or each of so many) fails in its turn, once or from
// then on, is interrupted, or reads less than was asked for.

#include <cerrno>
#include <cstdlib>
#include <iostream>

#include "disturbers/disturbed_play.h"
#include "disturbers/judged_files.h"
#include "support/file_calls_double.h"

namespace {

using namespace zarn_3_3::testing_support;

// Interrupted calls are repeated.
bool mayAnswer(const std::string&, const std::string& found, const std::string&) {
    return fileCalls.error != EINTR && found.rfind("6 Error reading option file '", 0) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const long stride = argc > 1 ? std::atol(argv[1]) : 1;
    long failures = 0;
    const int code = judgeFiles(argc - 1, argv + 1, [&](const Scenario& scenario) {
        const Undisturbed undisturbed(scenario);
        std::string wrong;
        for (const std::size_t longest : {FileCalls().longestRead, std::size_t{3}}) {
            fileCalls.longestRead = longest;
            for (const int error : {EIO, EACCES, EINTR}) {
                fileCalls.error = error;
                const Lasts lasts = error == EACCES ? Lasts::untilEndOfStep : Lasts::once;
                wrong += disturbEach(undisturbed, {fileCalls, lasts, mayAnswer}, stride, failures);
            }
        }
        return wrong;
    });
    std::cout << failures << " calls failed\n";
    return code;
}
