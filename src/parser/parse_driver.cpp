#include "parser/parse_driver.h"

#include <cstddef>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "parser/argument_sources.h"
#include "parser/messages.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/positional_options_parser.h"
#include "result/parse_result.h"
#include "text/text_locale.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {
namespace {

constexpr const char* logPrefix = "collectNonparsingArguments: ";

void removeLogSwitch(std::vector<std::string>& args, ArgumentSource& source) {
    switchLogOff();
    source.fillUp(args);
    if (!args.empty() && switchLog(args[0])) {
        source.removeFront(args);
    }
}

}  // namespace

std::atomic<int> ParseDriver::depth{0};

ParseDriver::ParseDriver(RegisteredOptionStorage& theRegistry,
                         EventHandler& eventParser,
                         const HandlerSet& whoListens,
                         int creationFlags,
                         ParseResult* filled,
                         std::string& errorText)
    : registry(theRegistry),
      parser(eventParser),
      listeners(whoListens),
      flags(creationFlags),
      result(filled),
      collector(filled),
      error(errorText) {
    depth.store(innermostParse() + 1, std::memory_order_relaxed);
}

ParseDriver::~ParseDriver() { depth.store(innermostParse() - 1, std::memory_order_relaxed); }

// Whether client code runs as a matter of course: handlers, a stream under the log, or a locale
// that is perhaps the client's own.
bool ParseDriver::isObserved() const {
    return !listeners.isEmpty() || isLogOn() || globalTextLocale() != TextLocale::classic;
}

int ParseDriver::parseOptions(const std::string& terminator,
                              std::vector<std::string>& args,
                              ArgumentSource& source) {
    removeLogSwitch(args, source);
    if (isObserved()) {
        source.secure();
    }
    PositionalOptionsParser positional(parser, listeners, flags, source);
    AbbreviationParser abbreviation(parser, listeners, flags, source);
    const Recognizers recognizers{&positional, &abbreviation};
    std::size_t matched = 0;
    while (!args.empty() && args[0] != terminator) {
        IArgumentParser* const taker = chooseRecognizer(recognizers, args);
        const int code = taker != nullptr ? taker->parse(args, collector, registry, matched, error)
                                          : passOver(args, source);
        if (code != resultOk) {
            return code;
        }
    }
    return resultOk;
}

// Of those that take the argument in front, the one with the highest priority; null for none.
IArgumentParser* ParseDriver::chooseRecognizer(const Recognizers& recognizers,
                                               std::vector<std::string>& args) {
    std::string discarded;  // they are only asked
    IArgumentParser* chosen = nullptr;
    int highest = -99999999;
    for (IArgumentParser* const recognizer : recognizers) {
        if (recognizer->recognize(args, registry, discarded) != 0) {
            continue;
        }
        const int priority = recognizer->getPriority();
        if (priority > highest) {
            chosen = recognizer;
            highest = priority;
        }
    }
    return chosen;
}

// An argument that nobody takes is an error or skipped; the handlers are asked in both cases.
int ParseDriver::passOver(std::vector<std::string>& args, ArgumentSource& source) {
    const bool isUnhandled = parser.onUknownArgument(args[0].c_str());
    if (isUnhandled && (flags & flagUnknownIsError) != 0) {
        error = messages::unknownArgument(args[0]);
        return resultRuleBroken;
    }
    trace("ignoring ", args[0]);
    source.removeFront(args);
    return resultOk;
}

int ParseDriver::collectNonparsingArguments(const std::string& terminator,
                                            std::vector<std::string>& args,
                                            ArgumentSource& source) {
    source.fillUp(args);
    if (args.empty() || args[0] != terminator) {
        return resultOk;
    }
    for (source.removeFront(args); !args.empty(); source.removeFront(args)) {
        result->storeArgument(args[0]);
        trace(logPrefix, "stored argument: '", args[0], "'");
        if ((flags & flagPositionalBehindTerminator) == 0) {
            continue;
        }
        const int code = offerToPositional(args[0]);
        if (code != resultOk) {
            return code;
        }
    }
    return resultOk;
}

// One argument at a time, which behind the terminator may begin with a dash.
int ParseDriver::offerToPositional(const std::string& argument) {
    const std::vector<std::string> none;
    VectorSource nothingElse(none);
    PositionalOptionsParser positional(
        parser, listeners, flags & ~flagPositionalWithoutDash, nothingElse);
    std::vector<std::string> args{argument};
    const int recognized = positional.recognize(args, registry, error);
    trace(logPrefix, "recognize result: ", recognized, ", message: ", error);
    if (recognized != 0) {
        return resultOk;
    }
    std::size_t matched = 0;
    const int code = positional.parse(args, collector, registry, matched, error);
    trace(logPrefix, "parse result: ", code, ", message: ", error);
    return code;
}

}  // namespace zarn_3_3::internal
