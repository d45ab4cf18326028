#include "support/expectation.h"

#include <csignal>
#include <cstdio>
#include <vector>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZARN_HAS_SANITIZER
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define ZARN_HAS_SANITIZER
#endif
#ifdef ZARN_HAS_SANITIZER
#include <sanitizer/common_interface_defs.h>
#endif

namespace zarn_3_3::checking {
namespace {

std::vector<std::string> places;
long violated = 0;

// To the descriptor itself, since the streams may be what is tested; and without memory.
void print(const char* verdict) {
    std::fputs(verdict, stderr);
    for (const std::string& place : places) {
        std::fprintf(stderr, "%s: ", place.c_str());
    }
}

void printEnd() {
    print("ENDED at ");
    std::fputc('\n', stderr);
}

void endBySignal(int signal) {
    printEnd();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Whoever ends the program is told where it was.
void announceEnd() {
    std::signal(SIGABRT, endBySignal);
    std::signal(SIGALRM, endBySignal);
#ifdef ZARN_HAS_SANITIZER
    __sanitizer_set_death_callback(printEnd);
#endif
}

// Long enough to see what a text is, and in one line.
std::string shown(const std::string& text) {
    constexpr std::size_t longest = 300;
    std::string line = "'";
    for (const char c : text.substr(0, longest)) {
        line += c == '\n' ? "\\n" : std::string(1, c);
    }
    return line + (text.size() > longest ? "...' of " + std::to_string(text.size()) : "'");
}

}  // namespace

Place::Place(const std::string& name) {
    if (places.empty()) {
        announceEnd();
    }
    places.push_back(name);
}

Place::~Place() { places.pop_back(); }

bool expect(bool holds, const std::string& what) {
    if (!holds) {
        ++violated;
        print("VIOLATED ");
        std::fprintf(stderr, "%s\n", what.c_str());
    }
    return holds;
}

bool expectEqual(const std::string& found, const std::string& expected, const std::string& what) {
    return found == expected ||
           expect(false, what + ": found " + shown(found) + ", expected " + shown(expected));
}

bool expectEqual(long found, long expected, const std::string& what) {
    return expectEqual(std::to_string(found), std::to_string(expected), what);
}

int conclude(const std::string& summary) {
    std::printf("%s; %ld violations\n", summary.c_str(), violated);
    return violated == 0 ? 0 : 1;
}

}  // namespace zarn_3_3::checking
