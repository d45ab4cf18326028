#include "parser/option_file_walk.h"

#include "parser/argument_sources.h"
#include "parser/messages.h"
#include "parser/parse_driver.h"
#include "result/parse_result.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {
namespace {

constexpr std::size_t mostFiles = 1000;
constexpr std::size_t mostBytes = std::size_t{256} * 1024 * 1024;

}  // namespace

OptionFileWalk::OptionFileWalk(ParseDriver& theDriver,
                               const ParseResult& filled,
                               std::string& errorText)
    : driver(theDriver), result(filled), error(errorText) {}

int OptionFileWalk::run() {
    noteNewValues(none);
    const StoredOption* entry = result.find(optionFileName);
    if (entry != nullptr && entry->isDefaultOnly()) {
        const int code = read(entry->defaultText, none);
        if (code != resultOk) {
            return code;
        }
    }
    // By index, and found anew each time: every file may add values.
    for (std::size_t i = 0;; ++i) {
        entry = result.find(optionFileName);
        if (entry == nullptr || i >= entry->values.size()) {
            return resultOk;
        }
        const int code = read(entry->values[i].text, valueNamedIn[i]);
        if (code != resultOk) {
            return code;
        }
    }
}

int OptionFileWalk::read(const std::string& path, std::size_t namedIn) {
    const auto identity = TROV_2_18::system::identify(path);
    if (identity && isBeingRead(*identity, namedIn)) {
        return refuse(messages::optionFileRefused(path, messages::optionFileCycle));
    }
    if (files.size() == mostFiles) {
        return refuse(messages::optionFileRefused(path, messages::tooManyOptionFiles));
    }
    std::string content;
    if (TROV_2_18::system::load_file(path, content) != 0) {
        return refuse(messages::optionFileUnreadable(path));
    }
    bytesRead += content.size();
    if (bytesRead > mostBytes) {
        return refuse(messages::optionFileRefused(path, messages::tooMuchOptionText));
    }
    files.push_back({identity, namedIn});
    const int code = parse(content);
    noteNewValues(files.size() - 1);
    return code;
}

int OptionFileWalk::parse(const std::string& content) {
    TextArguments arguments(content, TextArguments::Owner::library);
    const int code = driver.parseOptions(endOfOptions, arguments);
    return code != resultOk ? code : driver.collectNonparsingArguments(endOfOptions, arguments);
}

int OptionFileWalk::refuse(const std::string& message) {
    error = message;
    return resultOptionFileUnreadable;
}

// Whether the file is the innermost one or one of those that led to it. Side by side it may be
// named as often as one likes.
bool OptionFileWalk::isBeingRead(const TROV_2_18::system::FileIdentity& identity,
                                 std::size_t innermost) const {
    for (std::size_t i = innermost; i != none; i = files[i].namedIn) {
        if (files[i].identity && *files[i].identity == identity) {
            return true;
        }
    }
    return false;
}

void OptionFileWalk::noteNewValues(std::size_t namedIn) {
    const StoredOption* const entry = result.find(optionFileName);
    if (entry != nullptr && entry->values.size() > valueNamedIn.size()) {
        valueNamedIn.resize(entry->values.size(), namedIn);
    }
}

}  // namespace zarn_3_3::internal
