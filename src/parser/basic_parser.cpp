#include "parser/basic_parser.h"

#include <cstddef>
#include <memory>
#include <stdexcept>

#include "help/help_topics.h"
#include "help/messages.h"
#include "parser/action_rules.h"
#include "parser/argument_sources.h"
#include "parser/guarded.h"
#include "parser/option_file_walk.h"
#include "parser/parse_driver.h"
#include "result/parse_result.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

template <typename Made>
void requireOut(Made** out) {
    if (out == nullptr) {
        throw std::invalid_argument("The pointer to store the object through is null");
    }
}

// Results of any parser will do, but a class of the client's own that implements the interface has
// no place to store into: std::bad_cast.
ParseResult& ownResult(IParseResult* result) {
    if (result == nullptr) {
        throw std::invalid_argument("The result is null");
    }
    return dynamic_cast<ParseResult&>(*result);
}

}  // namespace

int createParser(IParser** out, int flags) {
    // There is no parser yet that could keep the text of a failure.
    std::string discarded;
    return guarded(discarded, [&] {
        requireOut(out);
        // Freed by destroy, and by nobody else.
        *out = new BasicParser(flags);
        return resultOk;
    });
}

BasicParser::BasicParser(int creationFlags) : flags(creationFlags) {
    if ((flags & flagValuesStayWhole) != 0) {
        registry.setSeparator(0);
    }
}

// Passes an event on: calls tell(handler, text) for each handler until it answers false. The text
// is kept, so that handlers may store the pointer.
//
// The parser is an event handler itself, so that recognisers need not know who listens, and so that
// a parser can be a handler of another one.
template <typename Tell>
void BasicParser::passOn(EventKind kind, const char* text, const Value* value, Tell tell) {
    // Most tools have none, and then no text of an event is kept either.
    if (handlers.isEmpty()) {
        return;
    }
    const char* const kept = garbage.init(text);
    passing_.passOnce({kind, kept, value, ParseDriver::innermostParse()}, [&] {
        handlers.visitWhile([&](EventHandler& handler) { return tell(handler, kept); });
    });
}

// Kept: an option cannot be refused, whatever a handler answers; its values can.
bool BasicParser::onOptionParse(const char* name) {
    passOn(EventKind::option, name, nullptr, [](EventHandler& handler, const char* kept) {
        handler.onOptionParse(kept);
        return true;
    });
    return true;
}

bool BasicParser::onValueParse(const char* name, const Value& value) {
    bool isValid = true;
    passOn(EventKind::value, name, &value, [&](EventHandler& handler, const char* kept) {
        isValid = handler.onValueParse(kept, value);
        return isValid;
    });
    return isValid;
}

bool BasicParser::onUknownArgument(const char* argument) {
    bool isUnhandled = true;
    passOn(EventKind::unknownArgument,
           argument,
           nullptr,
           [&](EventHandler& handler, const char* kept) {
               // The handler comes first: whatever those before it said, it is asked.
               isUnhandled = handler.onUknownArgument(kept) && isUnhandled;
               return true;
           });
    return isUnhandled;
}

void BasicParser::destroy() { delete this; }

int BasicParser::createResult(IParseResult** out) {
    return guarded(lastError, [&] {
        requireOut(out);
        *out = new ParseResult;
        return resultOk;
    });
}

IOption& BasicParser::option(const char* names,
                             const char* description,
                             das_variant_type_t type,
                             const char* section) {
    return registry.option(names, nullptr, description, false, type, section);
}

IOption& BasicParser::action(const char* names,
                             const char* description,
                             das_variant_type_t type,
                             const char* section) {
    return registry.action(names, description, type, section);
}

IOption& BasicParser::modifier(const char* names,
                               const char* actionNames,
                               const char* description,
                               das_variant_type_t type,
                               const char* section) {
    return registry.modifier(names, actionNames, description, type, section);
}

bool BasicParser::isOptionDeclared(const char* name, bool action, const char* section) {
    return name != nullptr &&
           guardedAnswer(false, [&] { return registry.isDeclared(name, action, section); });
}

int BasicParser::ended(int code) {
    if (code == resultOk) {
        failure_.clear();
        return code;
    }
    if (code == resultException) {
        failure_.make(exceptionCaught);
    }
    if (Failure* const failure = failure_.get()) {
        failure->code = code;
    }
    return code;
}

int BasicParser::parseArgsVector(int argc, const char* const* argv, IParseResult* result) {
    failure_.clear();
    return ended(guarded(lastError, [&] {
        ParseResult& filled = ownResult(result);
        // Defaults come before anything that can fail, so that a failed parse leaves them, and in
        // front of all numbers of the line.
        filled.applyDefault(registry.items());
        // Kept: an empty command line breaks no rule, not even that an action is needed.
        if (argc < 2) {
            return static_cast<int>(resultOk);
        }
        CommandLineArguments arguments(argc, argv);
        return parseAll(arguments, filled);
    }));
}

int BasicParser::parseStream(const char* text, IParseResult* result) {
    failure_.clear();
    return ended(guarded(lastError, [&] {
        ParseResult& filled = ownResult(result);
        TextArguments arguments(text == nullptr ? "" : text, TextArguments::Owner::client);
        return parseAll(arguments, filled);
    }));
}

const char* BasicParser::getErrorDesc() {
    return guardedAnswer("", [&] { return garbage.keep(lastError); });
}

// Keeps what write(topics) answers.
template <typename Write>
const char* BasicParser::keptHelp(Write write) {
    return guardedAnswer("", [&] {
        const HelpText help = write(HelpTopics(registry));
        if (help.isFailure) {
            lastError = messages::unknownError;
        }
        return garbage.keep(help.text);
    });
}

const char* BasicParser::getDescription(bool hidden) {
    return keptHelp([&](const HelpTopics& topics) { return topics.vocabulary(hidden); });
}

const char* BasicParser::getDescription(const char* topic, bool hidden) {
    return keptHelp([&](const HelpTopics& topics) { return topics.topic(topic, hidden); });
}

const char* BasicParser::getActionModifiersDescription(const char* action, bool hidden) {
    return keptHelp([&](const HelpTopics& topics) { return topics.modifiersOf(action, hidden); });
}

const char* BasicParser::getGlobalModifiersDescription(bool hidden) {
    return keptHelp([&](const HelpTopics& topics) { return topics.globalModifiers(hidden); });
}

bool BasicParser::addHandler(EventHandler* handler) {
    if (handler == nullptr || handler == this) {
        return false;
    }
    return guardedAnswer(false, [&] { return handlers.add(handler); });
}

bool BasicParser::removeHandler(EventHandler* handler) { return handlers.remove(handler); }

bool BasicParser::addOptionFileOption(const char* description, const char* section) {
    // Kept: also when a client has declared an "option-file" of its own, which then names the
    // files.
    optionFileDeclared = true;
    option(optionFileName, description, vtString, section);
    return true;
}

bool BasicParser::allowSimultaneousActions(const std::set<std::string>& actions) {
    return guardedAnswer(false, [&] {
        allowedActionSets.add(actions);
        return true;
    });
}

int BasicParser::parseVector(std::vector<std::string>& args, IParseResult* result) {
    ParseResult& filled = ownResult(result);
    const int code = parse_phase_one(endOfOptions, args, result, lastError);
    // Phase one has seen to its failure itself.
    if (code != resultOk) {
        return code;
    }
    ParseDriver driver = driverFor(&filled, lastError);
    // A copy: the terminator and what follows stay in the vector of whoever called.
    std::vector<std::string> rest(args);
    VectorArguments arguments(rest);
    return ended(parseBehindOptions(driver, arguments, filled));
}

int BasicParser::parse_phase_one(const std::string& terminator,
                                 std::vector<std::string>& args,
                                 IParseResult* result,
                                 std::string& error) {
    // What would be refused can be asked without a result.
    ParseResult* const filled = result == nullptr ? nullptr : &ownResult(result);
    VectorArguments arguments(args);
    failure_.clear();
    return ended(driverFor(filled, error).parseOptions(terminator, arguments));
}

int BasicParser::parse_phase_two(const std::string& /*terminator*/,
                                 std::vector<std::string>& /*args*/,
                                 IParseResult* result,
                                 std::string& error) {
    failure_.clear();
    return ended(checkActionRules(registry, allowedActionSets, ownResult(result), error, failure_));
}

int BasicParser::parseAll(Arguments& arguments, ParseResult& result) {
    ParseDriver driver = driverFor(&result, lastError);
    const int code = driver.parseOptions(endOfOptions, arguments);
    return code != resultOk ? code : parseBehindOptions(driver, arguments, result);
}

// What follows when the options of a command line are parsed: plain arguments, files, rules.
int BasicParser::parseBehindOptions(ParseDriver& driver,
                                    Arguments& arguments,
                                    ParseResult& result) {
    int code = driver.collectNonparsingArguments(arguments);
    // Files come behind the line itself, so that of values given in both the last one is the
    // file's.
    if (code == resultOk && optionFileDeclared) {
        code = OptionFileWalk(driver, result, lastError, failure_).run();
    }
    if (code == resultOk) {
        code = checkActionRules(registry, allowedActionSets, result, lastError, failure_);
    }
    return code;
}

ParseDriver BasicParser::driverFor(ParseResult* result, std::string& error) {
    return {
        registry, {*this, handlers, failure_},
         flags, result, error
    };
}

}  // namespace zarn_3_3
