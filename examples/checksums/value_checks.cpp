#include "value_checks.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "vocabulary.h"

namespace checksums {

bool ValueChecks::onOptionParse(const char* name) {
    if (std::string_view(name) == names::help) {
        namesAreTopics = true;
    }
    return true;
}

bool ValueChecks::onValueParse(const char* name, const zarn::Value& value) {
    const std::string_view option = name;
    if (option == names::files) {
        return namesAreTopics || isThere(value.text);
    }
    if (option == names::jobs) {
        return isInRange(zarn::get<unsigned>(value).value_or(0), maxJobs);
    }
    if (option == names::bufferSize) {
        return isInRange(zarn::get<unsigned>(value).value_or(0), maxBufferSize);
    }
    return true;
}

bool ValueChecks::isThere(const std::string& file) {
    std::error_code error;
    if (std::filesystem::exists(file, error)) {
        return true;
    }
    fileMissing = true;
    refusal = error ? error.message() : "there is no such file or folder";
    if (file.front() == '-') {
        refusal += " (options stand before the first file)";
    }
    return false;
}

bool ValueChecks::isInRange(unsigned number, unsigned greatest) {
    if (number >= 1 && number <= greatest) {
        return true;
    }
    refusal = "it must be between 1 and " + std::to_string(greatest);
    return false;
}

}  // namespace checksums
