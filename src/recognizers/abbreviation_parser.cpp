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

bool beginsWithNo(std::string_view name) { return name.substr(0, noPrefix.size()) == noPrefix; }

}  // namespace

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
    value_ = {};
    hasValue_ = splitOptionValue(argument, &text_, &value_, textLocale());
    return recognizeName(argument, registry) ? recognized : declined;
}

// An ambiguous argument is recognised too, for `parse` to refuse it: nobody else shall take it.
bool AbbreviationParser::recognizeName(const std::string& argument,
                                       RegisteredOptionStorage& registry) {
    // An exact name beats every longer one, so there is nothing to search.
    if (findOption(text_, matchIndex, registry) == resultSuccess) {
        matchName = text_;
    } else if (const int matches = findBestMatch(argument, registry); matches != 1) {
        return matches > 1;
    }
    trace(name,
          ": best match option for '",
          text_,
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
    const PrefixIndex::Found found = registry.findBeginning(text_);
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
    makeOptionNamesList(registry, text_, tied);
    for (const std::string& form : tied) {
        candidates += candidates.empty() ? "'" : ", '";
        candidates += form + "'";
    }
    trace(name,
          ": failed to get best match for '",
          text_,
          "' in argument '",
          argument,
          "':",
          messages::ambiguousOptions,
          candidates);
    return static_cast<int>(tied.size());
}

int AbbreviationParser::match(RegisteredOptionStorage& registry,
                              std::size_t& optionIndex,
                              std::string& error) {
    optionIndex = matchIndex;
    if (text_.empty() || text_[0] == '-') {
        error = messages::unknownOption(arguments_.front());
        return resultRuleBroken;
    }
    if (!candidates.empty()) {
        error =
            messages::ambiguousOption(text_, formatTokenMessage(arguments_.front()), candidates);
        return resultRuleBroken;
    }
    const OptionDescription& option = registry.items()[matchIndex];
    trace(name, ": detected option: '", option.primaryName(), "'");
    if (hasValue_) {
        trace(name, ": value from the same argument taken: '", value_, "'");
    }
    return decideValue(option, error);
}

int AbbreviationParser::decideValue(const OptionDescription& option, std::string& error) {
    argumentCount_ = 1;
    const bool isSwitch = option.type == vtNull;
    if (!isSwitch && option.type != vtBool) {
        return value_.empty() ? takeNextArgument(option, error) : resultOk;
    }
    if (!value_.empty()) {
        const std::string suffix = formatTokenMessage(arguments_.front());
        return refuse(isSwitch ? messages::switchTakesNoValue(option.primaryName(), suffix)
                               : messages::booleanTakesNoValue(option.primaryName(), suffix),
                      error);
    }
    if (!isSwitch) {
        value_ = beginsWithNo(matchName) ? "0" : "1";
    }
    return resultOk;
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option, std::string& error) {
    trace(name, ": no value in the same argument, looking next");
    const std::string* const next = arguments_.second();
    if (next != nullptr && !next->empty() && next->front() == '-') {
        return refuse(messages::valueSeemsToBeOption(option.primaryName(), *next), error);
    }
    if (next != nullptr) {
        value_ = *next;
        argumentCount_ = 2;
        trace(name, ": got value from the next argument: '", value_, "'");
    }
    if (value_.empty()) {
        return refuse(
            messages::valueRequired(option.primaryName(), formatTokenMessage(arguments_.front())),
            error);
    }
    return resultOk;
}

int AbbreviationParser::bind(const OptionDescription& option,
                             IResultCollector* collector,
                             std::string& error) {
    if (audience_.isThere()) {
        audience_.handler.onOptionParse(option.primaryName().c_str());
    }
    trace(name, ": sent event on option parsed");
    const int code = parseValueAndAddOption(value_, error, option, collector);
    for (std::size_t count = argumentCount_; code == resultOk && count > 0; --count) {
        take();
    }
    return code;
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
