// Loads the library named in the command line, uses it and unloads it, again and again: nothing may
// be left of it.

#include <dlfcn.h>

#include <climits>
#include <fstream>
#include <iostream>
#include <string>

#include "support/expectation.h"
#include "support/failing_new.h"
#include "zarn/zarn.h"

namespace zarn_3_3::hostile {
namespace {

using checking::expect;
using checking::expectEqual;

using CreateParser = int (*)(IParser** out, int flags);

void use(CreateParser create) {
    IParser* parser = nullptr;
    IParseResult* result = nullptr;
    expectEqual(create(&parser, flagUnknownIsError), resultOk, "createParser");
    parser->option("level,l", "A number", vtS32, "main:Main options");
    parser->option("name", "A text", vtString, "main");
    parser->addOptionFileOption("A file", "main");
    expectEqual(parser->createResult(&result), resultOk, "createResult");
    // With the log, which keeps a stream for as long as the library is there.
    const char* const line = "zarnoption=zarnlogenable=1\n--level=1,2,3\n--name=a text\n--\nplain";
    expectEqual(parser->parseStream(line, result), resultOk, "parse");
    expectEqual(parser->parseStream("--nothing", result), resultRuleBroken, "wrong parse");
    // A Value could not be linked: its destructor is the library's.
    expect(result->present("name", 0, INT_MAX), "value");
    const char* plain = nullptr;
    expectEqual(result->getFirstArgument(&plain), statusFound, "plain argument");
    expectEqual(plain, "plain", "plain argument");
    expect(std::string(parser->getDescription(false)).find("A number") != std::string::npos,
           "help");
    result->destroy();
    parser->destroy();
}

bool isMapped(const std::string& name) {
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(name) != std::string::npos) {
            return true;
        }
    }
    return false;
}

void loadAndUse(const char* path) {
    void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!expect(library != nullptr, path)) {
        return;
    }
    expect(isMapped("libzarn.so"), "mapped while it is loaded");
    void* const create = dlsym(library, "_ZN8zarn_3_312createParserEPPNS_7IParserEi");
    if (expect(create != nullptr, "createParser is exported")) {
        use(reinterpret_cast<CreateParser>(create));
    }
    expectEqual(dlclose(library), 0, "dlclose");
    expect(!isMapped("libzarn.so"), "unloaded");
}

int loadAgainAndAgain(const char* path) {
    constexpr int times = 100;
    std::cout.setstate(std::ios::failbit);  // the log goes nowhere
    loadAndUse(path);                       // whatever happens once in a process
    const std::size_t blocks = memory.liveBlocks();
    for (int i = 0; i < times; ++i) {
        loadAndUse(path);
    }
    const std::size_t left = memory.liveBlocks() - blocks;
    expectEqual(static_cast<long>(left), 0, "blocks that leaked");
    return checking::conclude(std::to_string(times) + " times loaded and unloaded");
}

}  // namespace
}  // namespace zarn_3_3::hostile

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: zarn_reload LIBRARY\n";
        return 2;
    }
    return zarn_3_3::hostile::loadAgainAndAgain(argv[1]);
}
