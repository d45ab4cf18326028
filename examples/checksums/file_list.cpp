#include "file_list.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace checksums {
namespace {

namespace fs = std::filesystem;

class Search {
public:
    explicit Search(const std::string& excludedFile) : excluded(excludedFile) {}

    void addNamed(const fs::path& path) {
        std::error_code ignored;
        if (fs::is_directory(path, ignored)) {
            addFolder(path);
        } else {
            addFile(path);
        }
    }

    FileList takeResult() {
        std::sort(found.files.begin(), found.files.end());
        const auto end = std::unique(found.files.begin(), found.files.end());
        found.files.erase(end, found.files.end());
        return std::move(found);
    }

private:
    void addFolder(const fs::path& folder) {
        std::error_code error;
        fs::directory_iterator entry(folder, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            addFound(*entry);
        }
        if (error) {
            found.problems.push_back(folder.string() + ": " + error.message());
        }
    }

    void addFound(const fs::directory_entry& entry) {
        std::error_code ignored;
        if (entry.is_regular_file(ignored)) {
            addFile(entry.path());
        } else if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
            addFolder(entry.path());
        }
    }

    void addFile(const fs::path& path) {
        std::error_code ignored;
        if (!fs::equivalent(path, excluded, ignored)) {
            found.files.push_back(withoutDotFolder(path.string()));
        }
    }

    static std::string withoutDotFolder(const std::string& path) {
        const bool hasDotFolder = path.size() > 2 && path.substr(0, 2) == "./";
        return hasDotFolder ? path.substr(2) : path;
    }

    fs::path excluded;
    FileList found;
};

}  // namespace

FileList findFiles(const std::vector<std::string>& names, const std::string& excluded) {
    Search search(excluded);
    for (const std::string& name : names) {
        search.addNamed(name);
    }
    return search.takeResult();
}

}  // namespace checksums
