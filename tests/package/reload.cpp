// Loads the library named in the command line, uses it and unloads it, again and again: nothing may
// be left of it.

#include <dlfcn.h>
#include <zarn/zarn.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "support/failing_new.h"

namespace {

void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "reload: not so: %s\n", what);
        std::exit(1);
    }
}

// Values could not be linked: their destructor is the library's.
void use(int (*create)(zarn::IParser** out, int flags)) {
    zarn::IParser* parser = nullptr;
    zarn::IParseResult* result = nullptr;
    require(create(&parser, zarn::flagUnknownIsError) == zarn::resultOk, "a parser");
    parser->option("level,l", "A number", zarn::vtS32, "main:Main options");
    require(parser->createResult(&result) == zarn::resultOk, "a result");
    // With the log, which keeps a stream for as long as the library is there.
    const char* const text = "zarnoption=zarnlogenable=1\n--level=1,2,3\n--\nplain";
    require(parser->parseStream(text, result) == zarn::resultOk, "a parse");
    require(result->present("l", 0, INT_MAX), "a value");
    require(parser->parseStream("--nothing", result) == zarn::resultRuleBroken, "a wrong parse");
    require(*parser->getDescription(false) != '\0', "help");
    result->destroy();
    parser->destroy();
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
    void* const create = dlsym(library, "_ZN8zarn_3_312createParserEPPNS_7IParserEi");
    require(create != nullptr, "createParser is exported");
    use(reinterpret_cast<int (*)(zarn::IParser**, int)>(create));
    require(dlclose(library) == 0 && !isMapped(), "it is unloaded");
}

}  // namespace

int main(int, char** argv) {
    std::cout.setstate(std::ios::failbit);  // the log goes nowhere
    loadAndUse(argv[1]);                    // whatever happens once in a process
    const std::size_t blocks = memory.liveBlocks();
    for (int i = 0; i < 100; ++i) {
        loadAndUse(argv[1]);
    }
    require(memory.liveBlocks() == blocks, "all memory is given back");
}
