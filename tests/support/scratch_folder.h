// A folder of its own for a test: others run beside it, and so may the same test of another build.

#ifndef ZARN_TESTS_SUPPORT_SCRATCH_FOLDER_H
#define ZARN_TESTS_SUPPORT_SCRATCH_FOLDER_H

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

namespace zarn_3_3::testing_support {

// The current one as long as it lives, and gone with all that is in it.
class ScratchFolder {
public:
    ScratchFolder() : before_(std::filesystem::current_path()) {
        std::string name = testing::TempDir() + "zarn_XXXXXX";
        path_ = ::mkdtemp(name.data());
        std::filesystem::current_path(path_);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(path_);
    }

private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_SCRATCH_FOLDER_H
