#include "disturbers/threads.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <iostream>
#include <thread>

#include "support/failing_new.h"
#include "support/stage.h"

namespace zarn_3_3::testing_support {
namespace {

std::atomic<long> mistakes{0};

void expect(bool holds, const char* what) {
    if (!holds) {
        ++mistakes;
        std::fprintf(stderr, "VIOLATED %s\n", what);
    }
}

// Runs task(i) in `number` threads, which begin together.
void inThreads(int number, const std::function<void(int)>& task) {
    std::atomic<int> arrived{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < number; ++i) {
        threads.emplace_back([i, number, &arrived, &task] {
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

// Whatever does not depend on numbers, which may come twice when two parse at once.
std::string conclusions(const Scenario& scenario, bool goesFromThreadToThread = false) {
    std::string text;
    Stage stage(Console::untouched);
    for (const Step& step : scenario.steps) {
        if (goesFromThreadToThread) {
            std::thread([&] { stage.perform(step); }).join();
        } else {
            stage.perform(step);
        }
        const Answers answers = std::exchange(stage.observer.answers, {});
        const bool isTold = isAmong(step.verb, {"args", "text", "help"});
        text += isTold && !answers.empty() ? answers.back().text + "\n" : "";
    }
    return text;
}

// Each turns the log on and off again while others write to it. More than there are cores, so that
// some are interrupted in between.
void switchLog() {
    const Scenario scenario = readScenarios(
        "scenario Log\nparser\ntext zarnoption=zarnlogenable=1 -- a b c d e f\ntext\n")[0];
    inThreads(8, [&scenario](int) {
        for (int round = 0; round < 1000; ++round) {
            conclusions(scenario);
        }
    });
}

// Two threads copy the same values and give them up in the same order: whoever is the last owner
// frees one, and nobody else does.
void shareValues() {
    for (int round = 0; round < 5000; ++round) {
        // Made while this may be the only thread, and given up before the others are done.
        std::vector<variant_t> shared;
        for (int i = 0; i < 20; ++i) {
            shared.emplace_back("a text that the last one frees");
            shared.push_back(variant_t::blob("bytes", 5));
            shared.push_back(variant_t::wideText(L"wide"));
        }
        std::array<std::vector<variant_t>, 2> owned{shared, shared};
        shared.clear();
        std::atomic<std::size_t> freed{0};
        inThreads(2, [&owned, &freed](int i) {
            const std::size_t returned = memory.returned;
            for (variant_t& value : owned[static_cast<std::size_t>(i)]) {
                const variant_t copy = value;
                expect(copy == value, "copy");
                value.free_data();
            }
            freed += memory.returned - returned;
        });
        expect(freed == 60, "each value is freed once");
    }
}

// The log and the warnings are written, but not shown. Returns whether this is so.
bool begin() {
    constexpr unsigned longestRun = 300;
    alarm(longestRun);
    const bool isSilent = std::freopen("/dev/null", "w", stdout) != nullptr;
    std::cerr.rdbuf(std::cout.rdbuf());
    switchLog();  // first, since what is made once for all is made here
    shareValues();
    return isSilent;
}

}  // namespace

// From thread to thread everything may go (but for the files of the double and the lack of memory,
// of which each thread has its own). At once the contract excludes it: numbers may then repeat, and
// nothing worse.
std::string wrongOnThreads(const Scenario& scenario) {
    static const bool isSilent = begin();
    expect(isSilent, "silence");
    const std::string right = conclusions(scenario);
    if (!hasStep(scenario, {"file", "pipe", "directory", "lack"})) {
        expect(conclusions(scenario, true) == right, "one behind the other");
    }
    if (!hasStep(scenario, {"locale", "left", "signs"})) {
        inThreads(4, [&](int) { expect(conclusions(scenario) == right, "several at once"); });
    }
    return mistakes.exchange(0) == 0 ? "" : "see above";
}

}  // namespace zarn_3_3::testing_support
