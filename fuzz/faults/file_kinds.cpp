// Files of every kind, real ones, and files that change while they are read.

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <thread>

#include "file_calls_double.h"
#include "file_faults.h"
#include "platform/load_file.h"
#include "support/expectation.h"

namespace zarn_3_3::faults {
namespace {

namespace fs = std::filesystem;
using checking::expect;
using checking::expectEqual;

const char* const refused = "<refused>";

long loaded = 0;

// The content, or what was there before when the file is refused.
std::string load(const std::string& path) {
    ++loaded;
    std::string content = refused;
    const int code = TROV_2_18::system::load_file(path, content);
    expect(code == 0 || content == refused, path + ": the output is left alone");
    expectEqual(fileCalls.openFiles, 0, path + ": files left open");
    return content;
}

void write(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

void makeSocket(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int code = ::bind(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address);
    expectEqual(code, 0, "socket");
    ::close(descriptor);
}

void makeFiles() {
    write("empty", "");
    write("lines", "--a\n--b");
    write("nul at the start", std::string("\0--a", 4));
    write("nul at the end", std::string("--a\0", 4));
    write("mark alone", "\xEF\xBB\xBF");
    write("half a mark", "\xEF\xBB");
    write("secret", "--a");
    fs::permissions("secret", fs::perms::none);
    fs::create_directory("directory");
    fs::create_symlink("lines", "link");
    fs::create_symlink("nowhere", "broken link");
    fs::create_symlink("link to itself", "link to itself");
    fs::create_symlink("directory", "link to a directory");
    makeSocket("socket");
}

struct Kind {
    std::string path;
    std::string content;
};

const std::string longName(300, 'n');
const std::string longPath(5000, '/');

void loadKinds() {
    makeFiles();
    const Kind kinds[] = {
        {"empty",                 ""        },
        {"lines",                 "--a\n--b"},
        {"./directory/..//lines", "--a\n--b"},
        {"link",                  "--a\n--b"},
        {"mark alone",            ""        },
        {"half a mark",           "\xEF\xBB"},
        {"nul at the start",      refused   },
        {"nul at the end",        refused   },
        {"missing",               refused   },
        {"directory",             refused   },
        {"directory/",            refused   },
        {"link to a directory",   refused   },
        {"broken link",           refused   },
        {"link to itself",        refused   },
        {"socket",                refused   },
        {"lines/below",           refused   },
        {longName,                refused   },
        {longPath,                refused   },
        {"/dev/zero",             refused   }, // endless
        {"/dev/full",             refused   },
        {"/dev/tty",              refused   },
        {"/proc/self/cmdline",    refused   }, // holds NUL bytes, of no size beforehand
    };
    for (const Kind& kind : kinds) {
        expectEqual(load(kind.path), kind.content, kind.path);
    }
    expect(load("/proc/self/status").find("VmPeak") != std::string::npos, "a file without a size");
    if (::geteuid() != 0) {  // to root everything is readable; the faults of the calls play this
        expectEqual(load("secret"), refused, "unreadable file");
    }
}

const std::string more(100000, '#');

void grow() { std::ofstream("file", std::ios::app) << more; }
void shrink() { fs::resize_file("file", 10); }
void empty() { fs::resize_file("file", 0); }
void removeIt() { fs::remove("file"); }
void getNul() { fs::resize_file("file", 100); }

struct Change {
    const char* name;
    void (*change)();
    std::string content;
};

const std::string twoLines = "--first=1\n--second=2\n";
const std::string firstLine = "--first=1\n";
const std::string grown = twoLines + more;

// What stands in the file when it is read counts, whatever its size was before.
const Change changes[] = {
    {"grows",      grow,     grown    },
    {"shrinks",    shrink,   firstLine},
    {"is emptied", empty,    ""       },
    {"is removed", removeIt, twoLines },
    {"gets a NUL", getNul,   refused  },
};

void loadChanging() {
    for (const Change& row : changes) {
        write("file", twoLines);
        fileCalls.beforeReading = row.change;
        expectEqual(load("file"), row.content, std::string("a file that ") + row.name);
    }
    fileCalls.beforeReading = nullptr;
}

// The writer is slow, so that the reader has to wait for every piece.
std::string loadWhileWritten(const std::string& piece, int times) {
    std::thread writer([&] {
        std::ofstream fifo("fifo");
        for (int i = 0; i < times; ++i) {
            fifo << piece << std::flush;
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
    std::string content = load("fifo");
    writer.join();
    return content;
}

void loadFifo() {
    std::signal(SIGPIPE, SIG_IGN);  // a reader that goes away early is to be reported
    expectEqual(::mkfifo("fifo", 0600), 0, "fifo");
    expectEqual(loadWhileWritten("", 1), "", "FIFO with nothing");
    expectEqual(loadWhileWritten("-a", 5), "-a-a-a-a-a", "FIFO with a slow writer");
    expectEqual(loadWhileWritten(more, 3), more + more + more, "FIFO with a lot");
    expectEqual(loadWhileWritten(std::string(3, '\0'), 1), refused, "FIFO with a NUL");
}

// As shells hand over what a command writes.
void loadPipe() {
    int ends[2];
    expectEqual(::pipe(ends), 0, "pipe");
    expectEqual(::write(ends[1], "--a\n", 4), 4, "written into a pipe");
    ::close(ends[1]);
    expectEqual(load("/dev/fd/" + std::to_string(ends[0])), "--a\n", "pipe");
    ::close(ends[0]);
}

}  // namespace

long loadEveryKind(const std::string& folder) {
    const checking::Place place("kinds of files");
    fs::create_directory(folder + "/kinds");
    fs::current_path(folder + "/kinds");
    loadKinds();
    loadChanging();
    loadFifo();
    loadPipe();
    return loaded;
}

}  // namespace zarn_3_3::faults
