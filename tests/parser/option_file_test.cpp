// Files that are too much for scenarios.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "support/tool.h"

namespace zarn_3_3 {
namespace {

TEST(OptionFiles, HaveALimitInSum) {
    std::string made = testing::TempDir() + "zarn_files_XXXXXX";
    const std::string folder = std::string(mkdtemp(made.data())) + "/";
    const std::string quarter = "--option-file=" + folder + "quarter";
    std::ofstream(folder + "quarter") << std::string(64 << 20, '#');
    std::ofstream(folder + "byte") << "#";
    testing_support::Tool tool;
    tool->addOptionFileOption("", "");
    EXPECT_EQ(tool.parse({quarter, quarter, quarter, quarter}), resultOk);
    tool.startNewResult();
    EXPECT_EQ(tool.parse({quarter, quarter, quarter, quarter, "--option-file=" + folder + "byte"}),
              resultOptionFileUnreadable);
    EXPECT_EQ(tool.error(),
              "Error reading option file '" + folder +
                  "byte': more than 256 MiB of option files in one parse");
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace zarn_3_3
