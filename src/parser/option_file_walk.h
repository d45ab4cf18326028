// Reads the files that the option "option-file" names.

#ifndef ZARN_PARSER_OPTION_FILE_WALK_H
#define ZARN_PARSER_OPTION_FILE_WALK_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/load_file.h"
#include "zarn/tooling.h"

namespace zarn_3_3 {

class ParseResult;

namespace internal {

class FailureNote;
class ParseDriver;

constexpr const char* optionFileName = "option-file";

// Goes through the values of "option-file" in the order in which they were stored. Files that a
// file names are stored behind them and so read in their turn, without recursion; only a file that
// is named again below itself would make that endless.
class OptionFileWalk {
public:
    OptionFileWalk(ParseDriver& driver,
                   ParseResult& result,
                   std::string& error,
                   FailureNote& failure)
        : driver_(driver), result_(result), error_(error), failure_(failure) {}

    // resultOk, resultOptionFileUnreadable, or the code with which a file's arguments failed.
    int run();

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    struct File {
        std::optional<TROV_2_18::system::FileIdentity> identity;
        std::size_t namedIn;  // index of the file that named it, or none
    };

    int read(const std::string& path, std::size_t namedIn);
    int parse(const std::string& content, const std::string& path);
    int refuse(DiagnosticKind kind, const std::string& path, const std::string& message);
    bool isBeingRead(const TROV_2_18::system::FileIdentity& identity, std::size_t innermost) const;
    void noteNewValues(std::size_t namedIn);

    ParseDriver& driver_;
    ParseResult& result_;
    std::string& error_;
    FailureNote& failure_;
    std::vector<File> files_;
    std::vector<std::size_t> valueNamedIn_;  // for each value the file that named it, or none
    std::size_t bytesRead_ = 0;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_PARSER_OPTION_FILE_WALK_H
