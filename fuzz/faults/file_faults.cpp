#include "file_faults.h"

#include <cerrno>
#include <fstream>

#include "file_calls_double.h"
#include "support/expectation.h"
#include "support/tool.h"

namespace zarn_3_3::faults {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;

struct Error {
    const char* name;
    int number;
    bool mayLast;  // an interruption does not
};

const Error errors[] = {
    {"EIO",    EIO,    true },
    {"EACCES", EACCES, true },
    {"EMFILE", EMFILE, true },
    {"ELOOP",  ELOOP,  true },
    {"ESTALE", ESTALE, true },
    {"EINTR",  EINTR,  false},
};

const char* const storedByAll = "level=1|2|3|4 -- a-plain-argument";

// Two files, of which the first names another; they add 2, 3 and 4 to the value of the line.
class Reading {
public:
    explicit Reading(const std::string& folder) : first(folder + "/first") {
        std::ofstream(folder + "/named") << "--level=3\n--level=4\n--\na-plain-argument";
        std::ofstream(first) << "--level=2\n--option-file=" << folder << "/named";
        tool.option("level", vtS32);
        tool->addOptionFileOption("", "");
    }

    int parse() {
        tool.startNewResult();
        return tool.parse({"--level=1", "--option-file=" + first});
    }

    Tool tool{flagUnknownIsError};

private:
    std::string first;
};

void expectAnswer(Reading& reading, int code) {
    const std::string stored = reading.tool.stored();
    if (code == resultOk) {
        expectEqual(stored, storedByAll, "stored");
        return;
    }
    const std::string text = "Error reading option file '";
    expectEqual(code, resultOptionFileUnreadable, "code");
    expectEqual(reading.tool.error().substr(0, text.size()), text, "error");
    // What was read before stays, and a file is used as a whole or not at all.
    expect(stored == "level=1" || stored == "level=1|2", "stored: " + stored);
    expect(fileCalls.hasStruck, "failed without a fault");
}

// Whether the call that fails was reached.
bool disturbCall(Reading& reading, const Error& error, bool isLasting, long call) {
    const checking::Place place(std::string(error.name) + (isLasting ? " lasting" : " once") +
                                " from call " + std::to_string(call));
    fileCalls.hasStruck = false;
    fileCalls.isInterruptible = false;
    fileCalls.isLasting = isLasting;
    fileCalls.error = error.number;
    fileCalls.left = call;
    const int code = reading.parse();
    fileCalls.left = 0;

    expectAnswer(reading, code);
    const bool isInterrupted = error.number == EINTR && fileCalls.isInterruptible;
    expect(!isInterrupted || code == resultOk, "an interrupted call is repeated");
    expectEqual(fileCalls.openFiles, 0, "files left open");
    const bool hasStruck = fileCalls.hasStruck;
    expectEqual(reading.parse(), resultOk, "the same without a fault");
    expectEqual(reading.tool.stored(), storedByAll, "stored without a fault");
    return hasStruck;
}

long disturbEachCall(Reading& reading, const Error& error, bool isLasting) {
    long call = 1;
    while (disturbCall(reading, error, isLasting, call)) {
        ++call;
    }
    return call - 1;
}

}  // namespace

long disturbFileCalls(const std::string& folder) {
    const checking::Place place("file calls");
    Reading reading(folder);
    long failures = 0;
    for (const std::size_t longest : {std::size_t{1}, std::size_t{7}, std::size_t{100000}}) {
        const checking::Place reads("reads of " + std::to_string(longest));
        fileCalls.longestRead = longest;
        for (const Error& error : errors) {
            failures += disturbEachCall(reading, error, false);
            failures += error.mayLast ? disturbEachCall(reading, error, true) : 0;
        }
    }
    fileCalls = {};
    return failures;
}

}  // namespace zarn_3_3::faults
