// The main loop: every argument goes to the recogniser that takes it.

#ifndef ZARN_PARSER_PARSE_DRIVER_H
#define ZARN_PARSER_PARSE_DRIVER_H

#include <array>
#include <atomic>
#include <string>
#include <vector>

namespace zarn_3_3 {

class EventHandler;
class IArgumentParser;
class IResultCollector;
class ParseResult;
class RegisteredOptionStorage;

namespace internal {

class ArgumentSource;
class HandlerSet;

// Ends the options of a command line or file.
constexpr const char* endOfOptions = "--";

// Reads arguments into one result. The arguments are those in `args` followed by those in `source`;
// what is dealt with is removed from the front of `args`.
class ParseDriver {
public:
    // `eventParser` hears the events, for those who listen there. `errorText` receives the text of
    // a failure. Without a result nothing can be stored, only refused.
    ParseDriver(RegisteredOptionStorage& theRegistry,
                EventHandler& eventParser,
                const HandlerSet& whoListens,
                int creationFlags,
                ParseResult* filled,
                std::string& errorText);
    ParseDriver(const ParseDriver&) = delete;
    ParseDriver& operator=(const ParseDriver&) = delete;
    ~ParseDriver();

    // Tells parses apart of which one runs inside the events of another, in whatever parsers.
    static int innermostParse() { return depth.load(std::memory_order_relaxed); }

    // Parses up to the terminator, which then stands in front, or to the end. Sets the debug log on
    // or off first, by the first argument. resultOk, or the code of the failure.
    int parseOptions(const std::string& terminator,
                     std::vector<std::string>& args,
                     ArgumentSource& source);

    // Keeps what stands behind the terminator as plain arguments; with
    // flagPositionalBehindTerminator they go to the positional item too.
    int collectNonparsingArguments(const std::string& terminator,
                                   std::vector<std::string>& args,
                                   ArgumentSource& source);

private:
    using Recognizers = std::array<IArgumentParser*, 2>;

    bool isObserved() const;
    IArgumentParser* chooseRecognizer(const Recognizers& recognizers,
                                      std::vector<std::string>& args);
    int passOver(std::vector<std::string>& args, ArgumentSource& source);
    int offerToPositional(const std::string& argument);

    RegisteredOptionStorage& registry;
    EventHandler& parser;
    const HandlerSet& listeners;
    int flags;
    ParseResult* result;
    IResultCollector* collector;
    std::string& error;

    static std::atomic<int> depth;  // of the parse in progress
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_PARSER_PARSE_DRIVER_H
