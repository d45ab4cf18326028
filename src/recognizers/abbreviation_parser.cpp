#include "recognizers/abbreviation_parser.h"

#include <cstdint>

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/messages.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

bool beginsWithNo(std::string_view name) { return name.substr(0, noPrefix.size()) == noPrefix; }

}  // namespace

int AbbreviationParser::recognize(std::vector<std::string>& args,
                                  RegisteredOptionStorage& registry,
                                  std::string& /*error*/) {
    const std::string& argument = args[0];
    candidates.clear();
    trace(name, ": recognizing argument '", argument, "'");
    matchIndex = NameIndex::none;
    const bool isOption = cutOption(argument, textLocale(), cut_);
    return isOption && recognizeName(argument, registry) ? recognized : declined;
}

// An ambiguous argument is recognised too, for `parse` to refuse it: nobody else shall take it.
bool AbbreviationParser::recognizeName(const std::string& argument,
                                       RegisteredOptionStorage& registry) {
    const Matches matches = resolveName(cut_.name, registry, matchIndex, matchName);
    if (matches == Matches::several) {
        listCandidates(argument, registry);
        return true;
    }
    if (matches == Matches::none) {
        return false;
    }
    trace(name,
          ": best match option for '",
          cut_.name,
          "' in argument '",
          argument,
          "' is '",
          matchName,
          "'");
    return true;
}

// That there are several is known, not which. That is asked once in a parse, which fails with it: a
// walk over all forms will do.
void AbbreviationParser::listCandidates(const std::string& argument,
                                        const RegisteredOptionStorage& registry) {
    std::vector<std::string> tied;
    makeOptionNamesList(registry, cut_.name, tied);
    for (const std::string& form : tied) {
        candidates += candidates.empty() ? "'" : ", '";
        candidates += form + "'";
    }
    trace(name,
          ": failed to get best match for '",
          cut_.name,
          "' in argument '",
          argument,
          "':",
          messages::ambiguousOptions,
          candidates);
}

const OptionDescription* AbbreviationParser::match(RegisteredOptionStorage& registry,
                                                   std::size_t& optionIndex,
                                                   std::string& error) {
    optionIndex = matchIndex;
    if (!cut_.isNamed() || !candidates.empty()) {
        tellProblem(error);
        return nullptr;
    }
    const OptionDescription& option = registry.items()[matchIndex];
    trace(name, ": detected option: '", option.primaryName(), "'");
    if (cut_.hasValue) {
        trace(name, ": value from the same argument taken: '", cut_.value, "'");
    }
    return decideValue(option, error) == resultOk ? &option : nullptr;
}

// The log has no line for either problem, unlike for those that are refused below.
void AbbreviationParser::tellProblem(std::string& error) {
    std::string& argument = arguments_.front();
    error = cut_.isNamed()
                ? messages::ambiguousOption(cut_.name, formatTokenMessage(argument), candidates)
                : messages::unknownOption(argument);
    noteFront(cut_.isNamed() ? ambiguousOption : malformedOption, "", "");
}

int AbbreviationParser::decideValue(const OptionDescription& option, std::string& error) {
    argumentCount_ = 1;
    if (needsValue(option)) {
        return cut_.value.empty() ? takeNextArgument(option, error) : resultOk;
    }
    // An empty value, as in "--name=", says nothing more than the name does.
    if (!cut_.value.empty()) {
        return refuseValue(option, error);
    }
    if (option.type == vtBool) {
        cut_.value = beginsWithNo(matchName) ? "0" : "1";
    }
    return resultOk;
}

int AbbreviationParser::refuseValue(const OptionDescription& option, std::string& error) {
    const std::string suffix = formatTokenMessage(arguments_.front());
    const std::string& primary = option.primaryName();
    return option.type == vtNull ? refuse(switchWithValue,
                                          option,
                                          cut_.value,
                                          messages::switchTakesNoValue(primary, suffix),
                                          error)
                                 : refuse(booleanWithValue,
                                          option,
                                          cut_.value,
                                          messages::booleanTakesNoValue(primary, suffix),
                                          error);
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option, std::string& error) {
    trace(name, ": no value in the same argument, looking next");
    const std::string* const next = arguments_.second();
    if (next != nullptr && isNoValue(*next)) {
        return refuse(valueLooksLikeOption,
                      option,
                      *next,
                      messages::valueSeemsToBeOption(option.primaryName(), *next),
                      error);
    }
    if (next != nullptr) {
        cut_.value = *next;
        argumentCount_ = 2;
        trace(name, ": got value from the next argument: '", cut_.value, "'");
    }
    // Also when the next argument is there and empty: it was meant for a value, and is none.
    if (cut_.value.empty()) {
        return refuse(
            valueMissing,
            option,
            "",
            messages::valueRequired(option.primaryName(), formatTokenMessage(arguments_.front())),
            error);
    }
    return resultOk;
}

int AbbreviationParser::bind(const OptionDescription& option,
                             IResultCollector* collector,
                             std::string& error) {
    // Before the value is looked at: handlers hear of the option also when that is refused.
    if (audience_.isThere()) {
        audience_.handler.onOptionParse(option.primaryName().c_str());
    }
    trace(name, ": sent event on option parsed");
    const int code = parseValueAndAddOption(cut_.value, error, option, collector);
    // Only now: what failed still stands in front, for whoever looks at the rest of the arguments.
    for (std::size_t count = argumentCount_; code == resultOk && count > 0; --count) {
        take();
    }
    return code;
}

// Forms are numbered in the order of declaration, which is that of the message.
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
