#include "parser/option_file_walk.h"

#include "parser/argument_sources.h"
#include "parser/messages.h"
#include "parser/parse_driver.h"
#include "recognizers/failure.h"
#include "result/parse_result.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {
namespace {

// A file may be named twice by another, that one twice by a third: a few short files without a
// cycle would be read almost for ever.
constexpr std::size_t mostFiles = 1000;
constexpr std::size_t mostBytes = std::size_t{256} * 1024 * 1024;

}  // namespace

// A walk by index over a list that grows: the files that a file names are values behind those that
// stand there already. This takes the place of recursion, whose depth a file could choose.
int OptionFileWalk::run() {
    noteNewValues(none);
    const StoredOption* entry = result_.find(optionFileName);
    // A default names a file like a value. The walk begins at the first value then, which that file
    // may have brought.
    if (entry != nullptr && entry->isDefaultOnly()) {
        const int code = read(entry->defaultText, none);
        if (code != resultOk) {
            return code;
        }
    }
    // By index, and found anew each time: every file may add values.
    for (std::size_t i = 0;; ++i) {
        entry = result_.find(optionFileName);
        if (entry == nullptr || i >= entry->size()) {
            return resultOk;
        }
        const int code = read(entry->textOf(i), valueNamedIn_[i]);
        if (code != resultOk) {
            return code;
        }
    }
}

int OptionFileWalk::read(const std::string& path, std::size_t namedIn) {
    // A file is known by what it is, not by its path: links and other spellings lead to it as well.
    // The cycle is looked for before the limits, which one would reach in the end: it is the better
    // reason.
    const auto identity = TROV_2_18::system::identify(path);
    if (identity && isBeingRead(*identity, namedIn)) {
        return refuse(
            optionFileCycle, path, messages::optionFileRefused(path, messages::optionFileCycle));
    }
    if (files_.size() == mostFiles) {
        return refuse(tooManyOptionFiles,
                      path,
                      messages::optionFileRefused(path, messages::tooManyOptionFiles));
    }
    std::string content;
    if (TROV_2_18::system::load_file(path, content) != 0) {
        return refuse(optionFileUnreadable, path, messages::optionFileUnreadable(path));
    }
    // After the load, which has a limit of its own: a file may change until it is read, a pipe has
    // no size.
    bytesRead_ += content.size();
    if (bytesRead_ > mostBytes) {
        return refuse(tooMuchOptionText,
                      path,
                      messages::optionFileRefused(path, messages::tooMuchOptionText));
    }
    files_.push_back({identity, namedIn});
    const int code = parse(content, path);
    noteNewValues(files_.size() - 1);
    return code;
}

int OptionFileWalk::parse(const std::string& content, const std::string& path) {
    // So that it can be told later what a file says: the modern face lets the command line overrule
    // it.
    const ParseResult::FromFile numbers(result_);
    // No handler can get at this text, so that none of it is copied.
    TextArguments arguments(content, TextArguments::Owner::library, path);
    const int code = driver_.parseOptions(endOfOptions, arguments);
    return code != resultOk ? code : driver_.collectNonparsingArguments(arguments);
}

int OptionFileWalk::refuse(DiagnosticKind kind,
                           const std::string& path,
                           const std::string& message) {
    error_ = message;
    failure_.make(kind, {}, {}, optionFileName, path);
    return resultOptionFileUnreadable;
}

// Whether the file is the innermost one or one of those that led to it. Side by side it may be
// named as often as one likes.
bool OptionFileWalk::isBeingRead(const TROV_2_18::system::FileIdentity& identity,
                                 std::size_t innermost) const {
    for (std::size_t i = innermost; i != none; i = files_[i].namedIn) {
        if (files_[i].identity && *files_[i].identity == identity) {
            return true;
        }
    }
    return false;
}

void OptionFileWalk::noteNewValues(std::size_t namedIn) {
    const StoredOption* const entry = result_.find(optionFileName);
    if (entry != nullptr && entry->size() > valueNamedIn_.size()) {
        valueNamedIn_.resize(entry->size(), namedIn);
    }
}

}  // namespace zarn_3_3::internal
