// Standard streams that cannot be written. Each is met in a process of its own, since it cannot be
// mended.

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "hostile.h"
#include "support/expectation.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using testing_support::Tool;

int closedDescriptor() { return -1; }
int fullDisk() { return ::open("/dev/full", O_WRONLY); }
int pipeWithoutReader() {
    int ends[2];
    if (::pipe(ends) != 0) {
        return -1;
    }
    std::signal(SIGPIPE, SIG_IGN);
    ::close(ends[0]);
    return ends[1];
}

struct Stream {
    const char* name;
    int (*make)();
};

const Stream streams[] = {
    {"closed streams",        closedDescriptor },
    {"full disk",             fullDisk         },
    {"pipe without a reader", pipeWithoutReader},
};

enum Mistake : int {
    none = 0,
    wrongCode = 1,
    wrongValues = 2,
    wroteWithoutLog = 3,
    wroteLog = 4,  // so the stream was not broken
};

// The log and a warning for standard error; a parse is the same with them and without.
Mistake useBrokenStreams(const Stream& stream) {
    const int descriptor = stream.make();
    for (const int broken : {STDOUT_FILENO, STDERR_FILENO}) {
        ::close(broken);
        if (descriptor != -1) {
            ::dup2(descriptor, broken);
        }
    }
    Tool tool(flagUnknownIsError);
    tool.option("word").allowValue("new").allowDeprecatedValue("old", "new");
    if (tool.parse({"--word=new"}) != resultOk) {
        return wrongCode;
    }
    if (!std::cout.good() || !std::cerr.good()) {
        return wroteWithoutLog;
    }
    if (tool.parse({"zarnoption=zarnlogenable=1", "--word=old"}) != resultOk ||
        tool.parse({"zarnoption=zarnlogenable=1", "--word=none"}) != resultRuleBroken ||
        tool.parse({"--word=old"}) != resultOk) {
        return wrongCode;
    }
    if (std::cout.good() || std::cerr.good()) {
        return wroteLog;
    }
    return tool.values("word") == "new|old|old" ? none : wrongValues;
}

int exitCodeOf(const Stream& stream) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(useBrokenStreams(stream));
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

long writeToBrokenStreams() {
    long met = 0;
    for (const Stream& stream : streams) {
        checking::expectEqual(exitCodeOf(stream), none, stream.name);
        ++met;
    }
    return met;
}

}  // namespace zarn_3_3::hostile
