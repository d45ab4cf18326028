#include "disturbers/disturbances.h"

#include <cerrno>

#include "support/failing_new.h"
#include "support/file_calls_double.h"
#include "support/restored.h"

namespace zarn_3_3::testing_support {
namespace {

// The text of a failure takes memory as well.
bool mayAnswerWithoutMemory(const std::string& verb,
                            const std::string& found,
                            const std::string& right) {
    const std::string failure = "std::bad_alloc";
    if (mayThrow(verb)) {
        return startsWith(found, "threw " + failure) || found[0] == right[0];
    }
    if (isParse({0, verb, {}})) {
        return found == "3" || found == "3 " + failure || found == right.substr(0, 1);
    }
    if (isHelp(verb)) {
        return found == "(nothing)" ||
               found.find("Unknown error handled. (without") != std::string::npos;
    }
    return found == (isAmong(verb, {"parser", "result"}) ? "3" : verb == "error" ? "" : "no");
}

// Interrupted calls are repeated.
bool mayAnswerWithoutFiles(const std::string&, const std::string& found, const std::string&) {
    return fileCalls.error != EINTR && startsWith(found, "6 Error reading option file '");
}

}  // namespace

Disturbance lackOfMemory(Lasts lasts) { return {memory, lasts, mayAnswerWithoutMemory}; }

std::string wrongWithoutMemory(const Scenario& scenario, long stride, long& failures) {
    const Undisturbed undisturbed(scenario);
    std::string wrong;
    if (hasStep(scenario, {"lack"})) {
        return wrong;
    }
    for (const Lasts lasts : {Lasts::once, Lasts::untilEndOfStep, Lasts::untilEndOfScenario}) {
        wrong += disturbEach(undisturbed, lackOfMemory(lasts), stride, failures);
    }
    return wrong;
}

std::string wrongWithoutFiles(const Scenario& scenario, long stride, long& failures) {
    const Undisturbed undisturbed(scenario);
    std::string wrong;
    for (const std::size_t longest : {FileCalls().longestRead, std::size_t{3}}) {
        const Restored read(fileCalls.longestRead, longest);
        for (const int error : {EIO, EACCES, EINTR}) {
            fileCalls.error = error;
            const Lasts lasts = error == EACCES ? Lasts::untilEndOfStep : Lasts::once;
            const Disturbance failing{fileCalls, lasts, mayAnswerWithoutFiles};
            wrong += disturbEach(undisturbed, failing, stride, failures);
        }
    }
    return wrong;
}

}  // namespace zarn_3_3::testing_support
