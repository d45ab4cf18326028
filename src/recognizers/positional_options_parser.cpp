#include "recognizers/positional_options_parser.h"

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

constexpr int recognized = 0;
constexpr int declined = 1;

}  // namespace

PositionalOptionsParser::PositionalOptionsParser(EventHandler& eventHandler,
                                                 const HandlerSet& whoListens,
                                                 int creationFlags,
                                                 ArgumentSource& rest)
    : IArgumentParser(eventHandler, whoListens, creationFlags, rest) {
    name = "PositionalOptionsParser";
}

int PositionalOptionsParser::recognize(std::vector<std::string>& args,
                                       RegisteredOptionStorage& registry,
                                       std::string& /*error*/) {
    const std::string& argument = args[0];
    trace(name, ": recognizing argument '", argument, "'");
    const bool isRefused =
        (flags & flagPositionalWithoutDash) != 0 && !argument.empty() && argument[0] == '-';
    const bool isTaken = !isRefused && registry.firstPositional() != NameIndex::none;
    return isTaken ? recognized : declined;
}

int PositionalOptionsParser::parse(std::vector<std::string>& args,
                                   IResultCollector* collector,
                                   RegisteredOptionStorage& registry,
                                   std::size_t& optionIndex,
                                   std::string& error) {
    trace(name, ": parsing argument '", args[0], "'");
    optionIndex = registry.firstPositional();
    // Kept: the log and onOptionParse name the item declared first, whichever that is.
    trace(name, ": option is '", registry.items().front().primaryName(), "'");
    const OptionDescription& option = registry.items()[optionIndex];
    if (mayChange(option, optionIndex, registry)) {
        const OptionDescription copy = option.forBinding();
        return parseArguments(copy, args, collector, registry, error);
    }
    return parseArguments(option, args, collector, registry, error);
}

int PositionalOptionsParser::parseArguments(const OptionDescription& option,
                                            std::vector<std::string>& args,
                                            IResultCollector* collector,
                                            const RegisteredOptionStorage& registry,
                                            std::string& error) {
    const bool takesRest = (flags & flagPositionalTakesRest) != 0;
    do {
        if (isHeard()) {
            handler.onOptionParse(registry.items().front().primaryName().c_str());
        }
        const int code = parseValueAndAddOption(args[0], error, option, args, collector);
        if (code != resultOk) {
            return code;
        }
        removeFront(args);
    } while (takesRest && !args.empty());
    return resultOk;
}

}  // namespace zarn_3_3
