#include "disturbers/lack_of_memory.h"

#include "disturbers/judged_files.h"
#include "support/failing_new.h"

namespace zarn_3_3::testing_support {
namespace {

// The text of a failure takes memory as well.
bool mayAnswer(const std::string& verb, const std::string& found, const std::string& right) {
    if (isParse({0, verb, {}})) {
        return found == "3" || found == "3 std::bad_alloc" || found == right.substr(0, 1);
    }
    if (isAmong(verb, {"help", "topic", "modifiers", "globals"})) {
        return found == "(nothing)" ||
               found.find("Unknown error handled. (without") != std::string::npos;
    }
    return found == (isAmong(verb, {"parser", "result"}) ? "3"
                     : verb == "error"                   ? ""
                     : verb == "wrap"                    ? "threw std::bad_alloc"
                                                         : "no");
}

}  // namespace

Disturbance lackOfMemory(Lasts lasts) { return {memory, lasts, mayAnswer}; }

}  // namespace zarn_3_3::testing_support
