// Real files: too much of them, and threads with little room and little time.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "support/scratch_folder.h"
#include "support/tool.h"

namespace zarn_3_3 {
namespace {

class OptionFiles : public testing::Test {
protected:
    OptionFiles() {
        tool.option("level", vtS32);
        tool->addOptionFileOption("", "");
    }

    std::string naming(const char* file) { return "--option-file=" + folder + file; }

    // What threads do.
    static void* parse(void* test) {
        auto& self = *static_cast<OptionFiles*>(test);
        self.code = self.tool.parse({self.naming("file")});
        return nullptr;
    }

    // With so many bytes in the pipe "file"; the text of the failure.
    std::string parseMuch(std::size_t size, const std::vector<std::string>& arguments) {
        std::thread writer([&] { std::ofstream(folder + "file") << std::string(size, '#'); });
        tool.startNewResult();
        code = tool.parse(arguments);
        writer.join();
        return code == resultOk ? "" : tool->getErrorDesc();
    }

    testing_support::ScratchFolder scratch;
    std::string folder = "./";
    testing_support::PlainTool tool;
    std::atomic<int> code{-1};
};

TEST_F(OptionFiles, HaveALimitEachAndInSum) {
    constexpr std::size_t most = std::size_t{256} << 20;
    const std::string failed = "Error reading option file '" + folder;
    ASSERT_EQ(::mkfifo((folder + "file").c_str(), 0600), 0);
    std::ofstream(folder + "byte") << "#";
    EXPECT_EQ(parseMuch(most, {naming("file")}), "");
    EXPECT_EQ(parseMuch(most + 1, {naming("file")}), failed + "file'");
    EXPECT_EQ(parseMuch(most, {naming("file"), naming("byte")}),
              failed + "byte': more than 256 MiB of option files in one parse");
}

TEST_F(OptionFiles, StayOnASmallStack) {
    std::ofstream(folder + "file") << "--level=1\n";
    constexpr std::size_t stack = 64 * 1024;
    alignas(4096) static unsigned char memory[5 * stack];  // the stack, and what is below it
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstack(&attributes, memory + 4 * stack, stack), 0);
    pthread_t thread{};
    ASSERT_EQ(pthread_create(&thread, &attributes, parse, this), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);

    EXPECT_EQ(code, resultOk);
    const auto* const lowest = std::find_if(
        std::begin(memory), std::end(memory), [](unsigned char byte) { return byte != 0; });
    EXPECT_LT(std::end(memory) - lowest, 32 * 1024) << "less than a buffer for the file";
}

std::ptrdiff_t openDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
}

// Once while it waits for somebody who writes, once while it waits for what is written.
TEST_F(OptionFiles, CanBeCancelledWhileTheyAreWaitedFor) {
    const std::string pipe = folder + "file";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    for (const bool hasWriter : {false, true}) {
        const std::ptrdiff_t before = openDescriptors();
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
    EXPECT_STREQ(tool.result->get("level", 0, INT_MAX).text, "2");
}

}  // namespace
}  // namespace zarn_3_3
