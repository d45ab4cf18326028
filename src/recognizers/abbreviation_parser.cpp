#include "recognizers/abbreviation_parser.h"

#include <cstdint>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/messages.h"
#include "text/cut_argument.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

constexpr int recognized = 0;
constexpr int declined = 1;

bool beginsWithNo(std::string_view name) { return name.substr(0, noPrefix.size()) == noPrefix; }

}  // namespace

AbbreviationParser::AbbreviationParser(EventHandler& eventHandler,
                                       const HandlerSet& whoListens,
                                       int creationFlags,
                                       ArgumentSource& rest)
    : IArgumentParser(eventHandler, whoListens, creationFlags, rest) {
    name = "AbbreviationParser";
}

int AbbreviationParser::recognize(std::vector<std::string>& args,
                                  RegisteredOptionStorage& registry,
                                  std::string& /*error*/) {
    const std::string& argument = args[0];
    candidates.clear();
    trace(name, ": recognizing argument '", argument, "'");
    matchIndex = NameIndex::none;
    if (argument.size() < 2 || getDashLength(argument, 0) == 0) {
        return declined;
    }
    value = {};
    hasValue = splitOptionValue(argument, &text, &value, textLocale());
    return recognizeName(argument, registry) ? recognized : declined;
}

// An ambiguous argument is recognised too, for `parse` to refuse it: nobody else shall take it.
bool AbbreviationParser::recognizeName(const std::string& argument,
                                       RegisteredOptionStorage& registry) {
    // An exact name beats every longer one, so there is nothing to search.
    if (findOption(text, matchIndex, registry) == resultSuccess) {
        matchName = text;
    } else if (const int matches = findBestMatch(argument, registry); matches != 1) {
        return matches > 1;
    }
    trace(name,
          ": best match option for '",
          text,
          "' in argument '",
          argument,
          "' is '",
          matchName,
          "'");
    return true;
}

// The number of matches: one is left in `matchName` and `matchIndex`, several in `candidates`.
int AbbreviationParser::findBestMatch(const std::string& argument,
                                      RegisteredOptionStorage& registry) {
    const PrefixIndex::Found found = registry.findBeginning(text);
    if (found.first == KeptTexts::none) {
        return 0;
    }
    if (found.isOnly) {
        matchName = registry.names().forms()[found.first];
        matchIndex = registry.names().firstWithForm(found.first);
        return 1;
    }
    // Who they are is asked once in a parse, which fails with that: a walk over all forms will do.
    std::vector<std::string> tied;
    makeOptionNamesList(registry, text, tied);
    for (const std::string& form : tied) {
        candidates += candidates.empty() ? "'" : ", '";
        candidates += form + "'";
    }
    trace(name,
          ": failed to get best match for '",
          text,
          "' in argument '",
          argument,
          "':",
          messages::ambiguousOptions,
          candidates);
    return static_cast<int>(tied.size());
}

int AbbreviationParser::parse(std::vector<std::string>& args,
                              IResultCollector* collector,
                              RegisteredOptionStorage& registry,
                              std::size_t& optionIndex,
                              std::string& error) {
    optionIndex = matchIndex;
    trace(name, ": parsing argument '", args[0], "'");
    if (text.empty() || text[0] == '-') {
        error = messages::unknownOption(args[0]);
        return resultRuleBroken;
    }
    if (!candidates.empty()) {
        error = messages::ambiguousOption(text, formatTokenMessage(args[0]), candidates);
        return resultRuleBroken;
    }
    const OptionDescription& option = registry.items()[matchIndex];
    trace(name, ": detected option: '", option.primaryName(), "'");
    if (hasValue) {
        trace(name, ": value from the same argument taken: '", value, "'");
    }
    std::size_t count = 1;
    int code = decideValue(option, args, count, error);
    if (code != resultOk) {
        return code;
    }
    if (mayChange(option, matchIndex, registry)) {
        const OptionDescription copy = option.forBinding();
        code = bind(copy, args, collector, error);
    } else {
        code = bind(option, args, collector, error);
    }
    for (; code == resultOk && count > 0; --count) {
        removeFront(args);
    }
    return code;
}

int AbbreviationParser::decideValue(const OptionDescription& option,
                                    std::vector<std::string>& args,
                                    std::size_t& count,
                                    std::string& error) {
    if (option.type == vtNull) {
        if (!value.empty()) {
            error = messages::switchTakesNoValue(option.primaryName(), formatTokenMessage(args[0]));
            return refuse(error);
        }
        return resultOk;
    }
    if (option.type == vtBool) {
        if (!value.empty()) {
            error =
                messages::booleanTakesNoValue(option.primaryName(), formatTokenMessage(args[0]));
            return refuse(error);
        }
        value = beginsWithNo(matchName) ? "0" : "1";
        return resultOk;
    }
    return value.empty() ? takeNextArgument(option, args, count, error) : resultOk;
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option,
                                         std::vector<std::string>& args,
                                         std::size_t& count,
                                         std::string& error) {
    trace(name, ": no value in the same argument, looking next");
    source.fillUp(args, 2);
    if (args.size() < 2) {
        error = messages::valueRequired(option.primaryName(), formatTokenMessage(args[0]));
        return refuse(error);
    }
    value = args[1];
    if (!value.empty() && value[0] == '-') {
        error = messages::valueSeemsToBeOption(option.primaryName(), args[1]);
        return refuse(error);
    }
    count = 2;
    trace(name, ": got value from the next argument: '", value, "'");
    if (value.empty()) {
        error = messages::valueRequired(option.primaryName(), formatTokenMessage(args[0]));
        return refuse(error);
    }
    return resultOk;
}

int AbbreviationParser::bind(const OptionDescription& option,
                             std::vector<std::string>& args,
                             IResultCollector* collector,
                             std::string& error) {
    if (isHeard()) {
        handler.onOptionParse(option.primaryName().c_str());
    }
    trace(name, ": sent event on option parsed");
    return parseValueAndAddOption(value, error, option, args, collector);
}

void makeOptionNamesList(const RegisteredOptionStorage& registry,
                         std::string_view beginning,
                         std::vector<std::string>& names) {
    const KeptTexts& forms = registry.names().forms();
    for (std::uint32_t number = 0; number < forms.size(); ++number) {
        if (forms[number].substr(0, beginning.size()) == beginning) {
            names.emplace_back(forms[number]);
        }
    }
}

}  // namespace zarn_3_3
