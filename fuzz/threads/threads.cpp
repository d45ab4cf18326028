// What threads may do at the same time, and what they do although the contract excludes it: for the
// thread sanitizer, which ends the program with a code of its own when it finds a race.

#include <unistd.h>

#include <array>
#include <atomic>
#include <climits>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "support/failing_new.h"
#include "zarn/zarn.h"

namespace zarn_3_3::threads {
namespace {

std::atomic<long> mistakes{0};
std::atomic<int> arrived{0};

void expect(bool holds, const char* what) {
    if (!holds) {
        ++mistakes;
        std::fprintf(stderr, "VIOLATED %s\n", what);
    }
}

// Runs task(i) in `number` threads, which begin together.
void inThreads(int number, const std::function<void(int)>& task) {
    arrived = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < number; ++i) {
        threads.emplace_back([i, number, &task] {
            for (++arrived; arrived < number;) {
                std::this_thread::yield();
            }
            task(i);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

struct Refuser final : EventHandler {
    bool onValueParse(const char*, const Value& value) override {
        return std::string(value.text) != "refused";
    }
};

void declare(IParser& parser) {
    parser.action("build", "Builds what is there", vtNull, "a:Actions");
    parser.modifier("jobs", "build", "At once", vtS32, "m:Modifiers").defaultValue(1);
    parser.option("ratio", "A fraction", vtDouble, "m").defaultValue(0.5);
    IOption& colour = parser.option("colour", "Of the text", vtString, "m");
    colour.allowValue("always").allowDeprecatedValue("old", "always");
    parser.option("file", "The files", vtString, "").positional();
    parser.addOptionFileOption("A file", "m");
}

struct Line {
    const char* text;
    int code;
    const char* error;
};

constexpr int unreadable = resultOptionFileUnreadable;

const Line lines[] = {
    {"--build\n--jobs=3\n--colour=alw\na,b\n--\nplain",   resultOk,         ""         },
    {"zarnoption=zarnlogenable=1\n--build\n--colour=old", resultOk,         ""         },
    {"--build\n--ratio=0.25\n--colour=none",              resultRuleBroken, "'none'"   },
    {"--build\n--unknown",                                resultRuleBroken, "--unknown"},
    {"--build\nrefused",                                  resultVetoed,     "'refused'"},
    {"--build\n--option-file=/nowhere/at/all",            unreadable,       "/nowhere" },
};

void parse(IParser& parser, const Line& line) {
    IParseResult* result = nullptr;
    expect(parser.createResult(&result) == resultOk, "createResult");
    expect(parser.parseStream(line.text, result) == line.code, line.text);
    if (line.code != resultOk) {
        expect(std::string(parser.getErrorDesc()).find(line.error) != std::string::npos, line.text);
    }
    expect(result->present("build", 0, INT_MAX), "the action is stored");
    if (&line == &lines[0]) {
        // Numbers may come twice when two parse at once, but nothing that was stored is lost.
        const Value jobs = getLastValue(result, "jobs", 0, INT_MAX);
        expect(jobs.status == statusFound && jobs.value.get<int>() == 3, "value");
    }
    result->destroy();
}

// All that a parser does, with one of its own.
void liveAsTool(int rounds) {
    for (int round = 0; round < rounds; ++round) {
        IParser* parser = nullptr;
        expect(createParser(&parser, flagUnknownIsError | flagPositionalWithoutDash) == resultOk,
               "createParser");
        declare(*parser);
        Refuser refuser;
        parser->addHandler(&refuser);
        for (const Line& line : lines) {
            parse(*parser, line);
        }
        expect(*parser->getDescription(false) != '\0', "help");
        expect(*parser->getActionModifiersDescription("build", false) != '\0', "help of an action");
        parser->destroy();
    }
}

// The contract excludes parsing at the same time; numbers may then repeat, and nothing worse.
void parseInTwoThreads() {
    constexpr int rounds = 500;
    inThreads(2, [](int) { liveAsTool(rounds); });
}

// Each turns the log on and off again while others write to it. More than there are cores, so that
// some are interrupted in between.
void switchLog() {
    constexpr int threads = 8;
    constexpr int rounds = 10000;
    inThreads(threads, [](int) {
        IParser* parser = nullptr;
        IParseResult* result = nullptr;
        createParser(&parser, 0);
        parser->createResult(&result);
        for (int round = 0; round < rounds; ++round) {
            parser->parseStream("zarnoption=zarnlogenable=1\n--\na\nb\nc\nd\ne\nf", result);
            parser->parseStream("", result);
        }
        result->destroy();
        parser->destroy();
    });
}

// One parser and its result go from thread to thread, each of which ends before the next begins.
void handOver() {
    IParser* parser = nullptr;
    createParser(&parser, flagUnknownIsError);
    declare(*parser);
    for (int i = 0; i < 10; ++i) {
        std::thread([parser] { parse(*parser, lines[0]); }).join();
    }
    std::thread([parser] { parser->destroy(); }).join();
}

// The owners are counted without fail: this one is the last, and frees the data.
void expectLastOwner(variant_t& value) {
    const std::size_t returned = memory.returned;
    value.free_data();
    expect(memory.returned == returned + 1, "owners are counted");
}

// Values of their own that share their data are copied and dropped by all threads.
void shareValues() {
    constexpr int threads = 8;
    constexpr int rounds = 20000;
    variant_t text("a text that all of them share");
    variant_t bytes = variant_t::blob("bytes", 5);
    variant_t wide = variant_t::wideText(L"wide");
    inThreads(threads, [&](int) {
        std::array<variant_t, 3> own{text, bytes, wide};
        for (int round = 0; round < rounds; ++round) {
            const variant_t copy = own[static_cast<std::size_t>(round) % own.size()];
            own[0] = text;
            expect(copy.type() != vtNull && own[0] == text, "copy");
        }
    });
    expect(text.get<std::string>() == "a text that all of them share", "text");
    expectLastOwner(text);
    expectLastOwner(bytes);
    expectLastOwner(wide);
}

// Threads give up the same values in the same order: whoever is the last owner frees one, and
// nobody else does.
void dropAsLastOwner() {
    constexpr int threads = 2;
    constexpr int rounds = 5000;
    constexpr long values = 50;
    for (int round = 0; round < rounds; ++round) {
        // Made while this may be the only thread, and given up before the others are done.
        std::vector<variant_t> shared;
        for (long i = 0; i < values; ++i) {
            shared.emplace_back("a text that the last one frees");
        }
        std::vector<std::vector<variant_t>> owned(threads, shared);
        shared.clear();
        std::atomic<long> freed{0};
        inThreads(threads, [&owned, &freed](int i) {
            std::vector<variant_t>& mine = owned[static_cast<std::size_t>(i)];
            expect(mine.front().get<std::string>().size() == 30, "text of the last owner");
            const std::size_t returned = memory.returned;
            for (variant_t& value : mine) {
                value.free_data();
            }
            freed += static_cast<long>(memory.returned - returned);
        });
        expect(freed == values, "each value is freed once");
    }
}

}  // namespace
}  // namespace zarn_3_3::threads

int main() {
    using namespace zarn_3_3::threads;
    constexpr unsigned longestRun = 300;
    alarm(longestRun);
    // The log and the warnings are written, but not shown.
    if (std::freopen("/dev/null", "w", stdout) == nullptr) {
        return 2;
    }
    std::cerr.rdbuf(std::cout.rdbuf());
    switchLog();  // first, since what is made once for all is made here
    shareValues();
    dropAsLastOwner();
    handOver();
    parseInTwoThreads();
    std::fprintf(stderr, "threads: %ld violations\n", mistakes.load());
    return mistakes == 0 ? 0 : 1;
}
