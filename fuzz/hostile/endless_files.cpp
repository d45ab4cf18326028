// Option files that would be read for ever, or a thousand million times.

#include <sys/resource.h>

#include <fstream>

#include "hostile.h"
#include "support/expectation.h"
#include "support/failing_new.h"
#include "support/tool.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;
using testing_support::Tool;

constexpr const char* cycle = ": the files name each other in a cycle";
constexpr const char* tooMany = ": more than 1000 option files in one parse";

enum class End { circle, open };

// Each file holds one value and names the next.
struct Files {
    const char* name;
    int number;
    int times;             // that each names the next
    End end;               // whether the last names the first
    const char* spelling;  // in front of their names
    long mostRead;
    const char* reason;
};

const Files fileSets[] = {
    {"file that names itself",                1,    1, End::circle, "",       1,    cycle  },
    {"file that names itself often",          1,    9, End::circle, "",       1,    cycle  },
    {"file that names itself in another way", 1,    1, End::circle, "/././/", 1,    cycle  },
    {"circle of three",                       3,    1, End::circle, "",       3,    cycle  },
    {"circle of three, each naming twice",    3,    2, End::circle, "",       7,    cycle  },
    {"circle of 2000",                        2000, 1, End::circle, "",       1000, tooMany},
    {"circle of thirty, each naming twice",   30,   2, End::circle, "",       1000, tooMany},
    {"thirty, each naming the next twice",    31,   2, End::open,   "",       1000, tooMany},
};

class EndlessFiles {
public:
    EndlessFiles(const std::string& parent, const Files& fileSet)
        : folder(parent + "/"), files(fileSet) {
        tool.option("level", vtS32);
        tool->addOptionFileOption("", "");
        for (int i = 0; i < files.number; ++i) {
            write(i);
        }
    }

    void parse() {
        const std::size_t bytesBefore = memory.bytes;
        const int code = tool.parse({"--option-file=" + folder + "0"});
        const std::size_t bytes = memory.bytes - bytesBefore;

        const std::string error = tool.error();
        expectEqual(code, resultOptionFileUnreadable, "code");
        expect(error.find(files.reason) != std::string::npos, "reason: " + error);
        // Each file adds one digit and a separator.
        const auto read = (tool.values("level").size() + 1) / 2;
        expectEqual(static_cast<long>(read), files.mostRead, "files that were read");
        constexpr std::size_t mostPerFile = 8192;
        expect(bytes <= mostPerFile * (read + 1), std::to_string(bytes) + " bytes were taken");
    }

private:
    void write(int i) const {
        std::ofstream file(folder + std::to_string(i));
        file << "--level=1\n";
        if (files.end == End::open && i + 1 == files.number) {
            return;
        }
        for (int times = 0; times < files.times; ++times) {
            file << "--option-file=" << folder << files.spelling << (i + 1) % files.number << "\n";
        }
    }

    std::string folder;
    const Files& files;
    Tool tool;
};

class Limit {
public:
    Limit(__rlimit_resource_t limited, rlim_t most) : resource(limited) {
        getrlimit(resource, &before);
        rlimit little = before;
        little.rlim_cur = most;
        setrlimit(resource, &little);
    }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;
    ~Limit() { setrlimit(resource, &before); }

private:
    __rlimit_resource_t resource;
    rlimit before{};
};

}  // namespace

long readFilesWithoutEnd(const std::string& folder) {
    // One file is open at a time, and none is read inside another, however many there are.
    const Limit descriptors(RLIMIT_NOFILE, 16);
    const Limit stack(RLIMIT_STACK, 512 * 1024);
    long sets = 0;
    for (const Files& files : fileSets) {
        const checking::Place place(files.name);
        EndlessFiles(folder, files).parse();
        ++sets;
    }
    return sets;
}

}  // namespace zarn_3_3::hostile
