// The main loop: every argument goes to the recogniser that takes it.

#ifndef ZARN_PARSER_PARSE_DRIVER_H
#define ZARN_PARSER_PARSE_DRIVER_H

#include <atomic>
#include <string>

#include "recognizers/argument_parser.h"
#include "recognizers/audience.h"

namespace zarn_3_3 {

class ParseResult;
class RegisteredOptionStorage;

namespace internal {

class Arguments;

// Ends the options of a command line or file.
constexpr const char* endOfOptions = "--";

// Reads arguments into one result, and takes those that are dealt with.
class ParseDriver {
public:
    // `error` receives the text of a failure. Without a result nothing can be stored, only
    // refused.
    ParseDriver(RegisteredOptionStorage& registry,
                const Audience& audience,
                int flags,
                ParseResult* result,
                std::string& error);
    ParseDriver(const ParseDriver&) = delete;
    ParseDriver& operator=(const ParseDriver&) = delete;
    ~ParseDriver();

    // Tells parses apart of which one runs inside the events of another, in whatever parsers.
    static int innermostParse() { return depth_.load(std::memory_order_relaxed); }

    // Parses up to the terminator, which then stands in front, or to the end. Sets the debug log on
    // or off first, by the first argument. resultOk, or the code of the failure.
    int parseOptions(const std::string& terminator, Arguments& arguments);

    // Keeps what stands behind the terminator as plain arguments; with
    // flagPositionalBehindTerminator they go to the positional item too.
    int collectNonparsingArguments(Arguments& arguments);

private:
    struct Recognizers;

    bool isObserved() const;
    IArgumentParser* chooseRecognizer(Recognizers& recognizers, Arguments& arguments);
    int passOver(Arguments& arguments);
    int offerToPositional(Arguments& arguments);

    RegisteredOptionStorage& registry_;
    const Audience audience_;
    int flags_;
    ParseResult* result_;
    std::string& error_;
    Binding binding_;

    static std::atomic<int> depth_;  // of the parse in progress
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_PARSER_PARSE_DRIVER_H
