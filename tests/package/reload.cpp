// Loads the library named in the command line, uses it and unloads it, again and again: nothing may
// be left of it.

#include <dlfcn.h>
#include <zarn/zarn.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "support/failing_new.h"
#include "support/tool.h"

namespace {

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "reload: not so: %s\n", what);
        std::exit(1);
    }
}

int (*create)(zarn::IParser** out, int flags) = nullptr;

// Values could not be linked: their destructor is the library's.
void use() {
    zarn_3_3::testing_support::PlainTool tool(zarn::flagUnknownIsError);
    tool.option("level,l", zarn::vtS32);
    // With the log, which keeps a stream for as long as the library is there.
    const char* const text = "zarnoption=zarnlogenable=1\n--level=1,2,3\n--\nplain";
    require(tool->parseStream(text, tool.result) == zarn::resultOk, "a parse");
    require(tool.result->present("l", 0, INT_MAX), "a value");
    require(tool.parse({"--nothing"}) == zarn::resultRuleBroken, "a wrong parse");
    require(*tool->getDescription(false) != '\0', "help");
}

bool isMapped() {
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line) && line.find("libzarn.so") == std::string::npos) {
    }
    return static_cast<bool>(maps);
}

void loadAndUse(const char* path) {
    void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    require(library != nullptr && isMapped(), "it is loaded");
    void* const symbol = dlsym(library, "_ZN8zarn_3_312createParserEPPNS_7IParserEi");
    require(symbol != nullptr, "createParser is exported");
    create = reinterpret_cast<decltype(create)>(symbol);
    use();
    require(dlclose(library) == 0 && !isMapped(), "it is unloaded");
}

}  // namespace

int zarn_3_3::createParser(IParser** out, int flags) { return create(out, flags); }

int main(int, char** argv) {
    std::cout.setstate(std::ios::failbit);  // the log goes nowhere
    loadAndUse(argv[1]);                    // whatever happens once in a process
    const std::size_t blocks = memory.liveBlocks();
    for (int i = 0; i < 100; ++i) {
        loadAndUse(argv[1]);
    }
    require(memory.liveBlocks() == blocks, "all memory is given back");
}
