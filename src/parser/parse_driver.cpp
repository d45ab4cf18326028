#include "parser/parse_driver.h"

#include <cstddef>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "parser/argument_sources.h"
#include "parser/messages.h"
#include "recognizers/abbreviation_parser.h"
#include "recognizers/failure.h"
#include "recognizers/positional_options_parser.h"
#include "result/parse_result.h"
#include "text/text_locale.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {
namespace {

constexpr const char* logPrefix = "collectNonparsingArguments: ";

// Each command line and each file decides anew: a log that was asked for in one place says nothing
// of the next.
void removeLogSwitch(Arguments& arguments) {
    switchLogOff();
    if (!arguments.isEmpty() && switchLog(arguments.front())) {
        arguments.take();
    }
}

}  // namespace

struct ParseDriver::Recognizers {
    PositionalOptionsParser positional;
    AbbreviationParser abbreviation;
};

std::atomic<int> ParseDriver::depth_{0};

ParseDriver::ParseDriver(RegisteredOptionStorage& registry,
                         const Audience& audience,
                         int flags,
                         ParseResult* result,
                         std::string& error)
    : registry_(registry), audience_(audience), flags_(flags), result_(result), error_(error) {
    // Parses run inside each other when handlers parse. An atomic, since parsers in other threads
    // count here as well; they only get numbers that tell less.
    depth_.store(innermostParse() + 1, std::memory_order_relaxed);
    binding_.texts.expect(registry.items().size());
}

ParseDriver::~ParseDriver() { depth_.store(innermostParse() - 1, std::memory_order_relaxed); }

// Whether client code runs as a matter of course: handlers, a stream under the log, or a locale
// that is perhaps the client's own.
bool ParseDriver::isObserved() const {
    return audience_.isThere() || isLogOn() || globalTextLocale() != TextLocale::classic;
}

int ParseDriver::parseOptions(const std::string& terminator, Arguments& arguments) {
    removeLogSwitch(arguments);
    // With nobody there the texts are read where the caller has them, and most tools never pay for
    // a copy.
    if (isObserved()) {
        arguments.secure();
    }
    const Reach reach = (flags_ & flagPositionalTakesRest) != 0 ? Reach::rest : Reach::plainOnes;
    Recognizers recognizers{
        {audience_, arguments, binding_, flags_, reach},
        {audience_,    arguments,             binding_            }
    };
    std::size_t matched = 0;
    while (!arguments.isEmpty() && arguments.front() != terminator) {
        IArgumentParser* const taker = chooseRecognizer(recognizers, arguments);
        const int code = taker != nullptr
                             ? taker->parse(arguments.window(), result_, registry_, matched, error_)
                             : passOver(arguments);
        if (code != resultOk) {
            return code;
        }
    }
    return resultOk;
}

// Of those that take the argument in front, the one with the highest priority; null for none.
IArgumentParser* ParseDriver::chooseRecognizer(Recognizers& recognizers, Arguments& arguments) {
    std::string discarded;  // they are only asked
    IArgumentParser* chosen = nullptr;
    int highest = -99999999;
    // Each by its own type, which spares a look into its table: this runs for every argument.
    const auto ask = [&](auto& recognizer) {
        if (recognizer.recognize(arguments.window(), registry_, discarded) != 0) {
            return;
        }
        const int priority = recognizer.getPriority();
        if (priority > highest) {
            chosen = &recognizer;
            highest = priority;
        }
    };
    // All are asked, also when one has said yes: the log shows what each of them makes of an
    // argument.
    ask(recognizers.positional);
    ask(recognizers.abbreviation);
    return chosen;
}

// An argument that nobody takes is an error or skipped; the handlers are asked in both cases.
int ParseDriver::passOver(Arguments& arguments) {
    // Handlers hear of it before it is an error: that is how a tool takes arguments that it does
    // not declare.
    const bool isUnhandled = audience_.handler.onUknownArgument(arguments.front().c_str());
    if (isUnhandled && (flags_ & flagUnknownIsError) != 0) {
        error_ = messages::unknownArgument(arguments.front());
        audience_.failure.make(unknownArgument, arguments.placeOfFront(), arguments.front());
        return resultRuleBroken;
    }
    trace("ignoring ", arguments.front());
    arguments.take();
    return resultOk;
}

int ParseDriver::collectNonparsingArguments(Arguments& arguments) {
    if (arguments.isEmpty()) {
        return resultOk;
    }
    arguments.take();  // the terminator
    while (!arguments.isEmpty()) {
        result_->storeArgument(arguments.front());
        trace(logPrefix, "stored argument: '", arguments.front(), "'");
        if ((flags_ & flagPositionalBehindTerminator) == 0) {
            arguments.take();
            continue;
        }
        const int code = offerToPositional(arguments);
        if (code != resultOk) {
            return code;
        }
    }
    return resultOk;
}

// One argument at a time, which behind the terminator may begin with a dash. Each is a plain
// argument first, and only then an occurrence: the result shows it in both ways.
int ParseDriver::offerToPositional(Arguments& arguments) {
    const int flags = flags_ & ~flagPositionalWithoutDash;
    PositionalOptionsParser positional(audience_, arguments, binding_, flags, Reach::one);
    const int recognized = positional.recognize(arguments.window(), registry_, error_);
    trace(logPrefix, "recognize result: ", recognized, ", message: ", error_);
    if (recognized != 0) {
        arguments.take();
        return resultOk;
    }
    std::size_t matched = 0;
    const int code = positional.parse(arguments.window(), result_, registry_, matched, error_);
    trace(logPrefix, "parse result: ", code, ", message: ", error_);
    return code;
}

}  // namespace zarn_3_3::internal
