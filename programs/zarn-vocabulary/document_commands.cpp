#include "document_commands.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "description_reader.h"
#include "document.h"
#include "markdown_writer.h"
#include "mdoc_writer.h"
#include "page_date.h"

namespace vocabulary {
namespace {

// A tool that does not say its name has that of the file.
Document documentIn(const std::string& path) {
    Description description = readDescriptionFile(path);
    if (description.name.empty()) {
        description.name = std::filesystem::path(path).stem().string();
    }
    return documentOf(description);
}

std::time_t timeOfChange(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        throw std::runtime_error(path + ": " +
                                 std::error_code(errno, std::generic_category()).message());
    }
    return status.st_mtime;
}

}  // namespace

void ManCommand::declare(zarn::Parser& parser) {
    parser.declare({
        zarn::action("man", "Write the manual page of a tool.").into(isWanted_),
        zarn::modifier<std::string>("date", "man", "The date of the page.")
            .named("YYYY-MM-DD")
            .check([](const std::string& date) { return readDate(date).has_value(); },
                   "it must be a day, as in 2026-01-31")
            .into(date_),
    });
}

Answer ManCommand::perform(const std::vector<std::string>& arguments) const {
    const std::string& path = arguments[0];
    return {asManualPage(documentIn(path), dateFor(path))};
}

std::string ManCommand::dateFor(const std::string& path) const {
    if (const auto given = readDate(date_)) {
        return writtenDate(*given);
    }
    // What builds set whose results are to be equal whenever they are made.
    const char* const epoch = ::secure_getenv("SOURCE_DATE_EPOCH");
    if (epoch == nullptr || *epoch == '\0') {
        return writtenDate(timeOfChange(path));
    }
    const auto seconds = readSeconds(epoch);
    if (!seconds) {
        throw std::runtime_error("SOURCE_DATE_EPOCH is '" + std::string(epoch) +
                                 "', which is no number of seconds");
    }
    return writtenDate(*seconds);
}

void MarkdownCommand::declare(zarn::Parser& parser) {
    parser.declare({
        zarn::action("markdown", "Write a page about a tool in Markdown.").into(isWanted_),
    });
}

Answer MarkdownCommand::perform(const std::vector<std::string>& arguments) const {
    return {asMarkdown(documentIn(arguments[0]))};
}

}  // namespace vocabulary
