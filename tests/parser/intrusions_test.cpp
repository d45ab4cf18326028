// What the surroundings of a parse do to it while it runs: streams with a will of their own,
// threads with little room and little time.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "support/captured_stream.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

using testing_support::Tool;

// A stream that runs code of the client each time when `cue` was written to it.
class ActingStream final : public std::streambuf {
public:
    ActingStream(std::ostream& replaced, std::string cue, std::function<void()> act)
        : stream_(replaced),
          cue_(std::move(cue)),
          act_(std::move(act)),
          before_(replaced.rdbuf(this)) {}
    ~ActingStream() override {
        stream_.clear();
        stream_.exceptions(std::ios::goodbit);
        stream_.rdbuf(before_);
    }

private:
    int_type overflow(int_type c) override {
        line_ += traits_type::to_char_type(c);
        if (line_.find(cue_) != std::string::npos) {
            line_.clear();
            act_();
        }
        return traits_type::not_eof(c);
    }

    std::ostream& stream_;
    std::string cue_;
    std::string line_;
    std::function<void()> act_;
    std::streambuf* before_;
};

// Writes `warning` when it binds the value "old".
IOption& declareWithWarning(Tool& tool) {
    return tool.option("tone").allowValue("new").allowDeprecatedValue("old", "new");
}

TEST(HandlersAddedByAStream, HearFromThereOn) {
    Tool tool;
    declareWithWarning(tool);
    const ActingStream warnings(std::cerr, "Warning", [&] { tool.listen(); });
    EXPECT_EQ(tool.parse({"--tone=new,old,new", "--tone=new", "-q"}), resultOk);
    EXPECT_EQ(tool.handler.events,
              "value tone=old; value tone=new; option tone; value tone=new; unknown -q");
}

TEST(StreamsThatChangeAnItem, LeaveTheOccurrenceItsOwn) {
    for (const char* const first : {"--tone=new", "zarnoption=zarnlogenable=1"}) {
        Tool tool;
        IOption& tone = declareWithWarning(tool);
        const auto change = [&] { tone.synonym("a name that moves the others").tokenize(0); };
        const ActingStream log(std::cout, "adding values", change);
        const ActingStream warnings(std::cerr, "Warning", change);
        EXPECT_EQ(tool.parse({first, "--tone=old,new"}), resultOk);
        EXPECT_EQ(tool.values("tone"), *first == '-' ? "new|old|new" : "old|new");
    }
}

TEST(StreamsThatThrow, ChangeNoParse) {
    for (std::ostream* const broken : {&std::cout, &std::cerr}) {
        Tool tool(flagUnknownIsError);
        declareWithWarning(tool);
        const ActingStream stream(*broken, "", [] { throw std::runtime_error("A full disk"); });
        broken->exceptions(std::ios::badbit | std::ios::failbit);
        const CapturedStream other(broken == &std::cout ? std::cerr : std::cout);
        EXPECT_EQ(tool.parse({"zarnoption=zarnlogenable=1", "--tone=old", "x"}), resultRuleBroken);
        EXPECT_TRUE(broken->bad()) << "it was never written";
        EXPECT_EQ(tool.error(), "Unknown option: x");
        EXPECT_EQ(tool.values("tone"), "old");
    }
}

TEST(Trace, WritesNumbersAsTheFlagsOfTheStreamSay) {
    Tool tool(flagPositionalBehindTerminator);
    tool.option("file").positional();
    const CapturedStream log(std::cout);
    std::cout << std::showpos;
    EXPECT_EQ(tool.parse({"zarnoption=zarnlogenable=1", "--", "a"}), resultOk);
    std::cout << std::noshowpos;
    EXPECT_NE(log.text().find("recognize result: +0, message: \n"), std::string::npos);
    EXPECT_NE(log.text().find("parse result: +0, message: \n"), std::string::npos);
}

class OptionFileInAThread : public testing::Test {
protected:
    OptionFileInAThread() {
        std::string name = testing::TempDir() + "zarn_thread_XXXXXX";
        folder = ::mkdtemp(name.data()) + std::string("/");
        tool.option("level", vtS32);
        tool->addOptionFileOption("", "");
    }
    ~OptionFileInAThread() override { std::filesystem::remove_all(folder); }

    static void* parse(void* test) {
        auto& self = *static_cast<OptionFileInAThread*>(test);
        const std::string naming = "--option-file=" + self.folder + "file";
        const char* const argv[] = {"tool", naming.c_str()};
        self.code = self.tool->parseArgsVector(2, argv, self.tool.result);
        return nullptr;
    }

    std::string folder;
    Tool tool;
    std::atomic<int> code{-1};
};

TEST_F(OptionFileInAThread, StaysOnASmallStack) {
    std::ofstream(folder + "file") << "--level=1\n";
    constexpr std::size_t below = 256 * 1024;
    constexpr std::size_t stack = 64 * 1024;
    auto* const memory = static_cast<unsigned char*>(
        ::mmap(nullptr, below + stack, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(memory, MAP_FAILED);
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstack(&attributes, memory + below, stack), 0);
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, parse, this), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);

    EXPECT_EQ(code, resultOk);
    const auto* const lowest =
        std::find_if(memory, memory + below + stack, [](unsigned char byte) { return byte != 0; });
    const auto used = static_cast<std::size_t>(memory + below + stack - lowest);
    EXPECT_LT(used, 32U * 1024) << "less than a buffer for the file";
    ::munmap(memory, below + stack);
}

std::size_t openDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

// Once while it waits for somebody who writes, once while it waits for what is written.
TEST_F(OptionFileInAThread, CanBeCancelledWhileItWaitsForAPipe) {
    const std::string pipe = folder + "file";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const bool hasWriter : {false, true}) {
        const std::size_t before = openDescriptors();
        const int writer = hasWriter ? ::open(pipe.c_str(), O_RDWR) : -1;
        pthread_t thread{};
        ASSERT_EQ(pthread_create(&thread, nullptr, parse, this), 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        ASSERT_EQ(pthread_cancel(thread), 0);
        void* end = nullptr;
        ASSERT_EQ(pthread_join(thread, &end), 0);
        EXPECT_EQ(end, PTHREAD_CANCELED);
        ::close(writer);
        EXPECT_EQ(openDescriptors(), before);
    }
    tool.startNewResult();
    EXPECT_EQ(tool.parse({"--level=2"}), resultOk);
    EXPECT_EQ(tool.values("level"), "2");
}

}  // namespace
}  // namespace zarn_3_3
