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
    // A lone dash is no option: many tools take it for the standard input.
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

// Looking for the best match. A form that is typed in full was found before; of the others those
// match that begin with the text, letter by letter. One match is taken. Nothing is ever guessed
// beyond that, however close a name may be: a tool could do something else than its user asked for.
//
// The number of matches: one is left in `matchName` and `matchIndex`, several in `candidates`.
int AbbreviationParser::findBestMatch(const std::string& argument,
                                      RegisteredOptionStorage& registry) {
    const PrefixIndex::Found found = registry.findBeginning(text_);
    if (found.first == KeptTexts::none) {
        return 0;
    }
    // The index counts forms, not items: two names of one item that begin so are ambiguous too.
    if (found.isOnly) {
        matchName = registry.names().forms()[found.first];
        matchIndex = registry.names().firstWithForm(found.first);
        return 1;
    }
    // The index knows that there are several, not which. That is asked once in a parse, which fails
    // with it: a walk over all forms will do.
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

const OptionDescription* AbbreviationParser::match(RegisteredOptionStorage& registry,
                                                   std::size_t& optionIndex,
                                                   std::string& error) {
    optionIndex = matchIndex;
    const bool isName = !text_.empty() && text_[0] != '-';
    if (!isName || !candidates.empty()) {
        tellProblem(isName, error);
        return nullptr;
    }
    const OptionDescription& option = registry.items()[matchIndex];
    trace(name, ": detected option: '", option.primaryName(), "'");
    if (hasValue_) {
        trace(name, ": value from the same argument taken: '", value_, "'");
    }
    return decideValue(option, error) == resultOk ? &option : nullptr;
}

// "--" with a value behind it, or a third dash: it looked like an option, and can be none. The log
// has no line for either problem, unlike for those that are refused below.
void AbbreviationParser::tellProblem(bool isName, std::string& error) {
    std::string& argument = arguments_.front();
    error = isName ? messages::ambiguousOption(text_, formatTokenMessage(argument), candidates)
                   : messages::unknownOption(argument);
    noteFront(isName ? ambiguousOption : malformedOption, "", "");
}

int AbbreviationParser::decideValue(const OptionDescription& option, std::string& error) {
    argumentCount_ = 1;
    const bool isSwitch = option.type == vtNull;
    if (!isSwitch && option.type != vtBool) {
        return value_.empty() ? takeNextArgument(option, error) : resultOk;
    }
    // For these the name is all there is to say. An empty value, as in "--name=", says nothing
    // more.
    if (!value_.empty()) {
        return refuseValue(option, error);
    }
    if (!isSwitch) {
        value_ = beginsWithNo(matchName) ? "0" : "1";
    }
    return resultOk;
}

int AbbreviationParser::refuseValue(const OptionDescription& option, std::string& error) {
    const std::string suffix = formatTokenMessage(arguments_.front());
    const std::string& primary = option.primaryName();
    return option.type == vtNull ? refuse(switchWithValue,
                                          option,
                                          value_,
                                          messages::switchTakesNoValue(primary, suffix),
                                          error)
                                 : refuse(booleanWithValue,
                                          option,
                                          value_,
                                          messages::booleanTakesNoValue(primary, suffix),
                                          error);
}

int AbbreviationParser::takeNextArgument(const OptionDescription& option, std::string& error) {
    trace(name, ": no value in the same argument, looking next");
    const std::string* const next = arguments_.second();
    // Most likely the value was forgotten, and this is the next option. A negative number looks the
    // same, and has to be attached.
    if (next != nullptr && !next->empty() && next->front() == '-') {
        return refuse(valueLooksLikeOption,
                      option,
                      *next,
                      messages::valueSeemsToBeOption(option.primaryName(), *next),
                      error);
    }
    if (next != nullptr) {
        value_ = *next;
        argumentCount_ = 2;
        trace(name, ": got value from the next argument: '", value_, "'");
    }
    if (value_.empty()) {
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
    if (audience_.isThere()) {
        audience_.handler.onOptionParse(option.primaryName().c_str());
    }
    trace(name, ": sent event on option parsed");
    const int code = parseValueAndAddOption(value_, error, option, collector);
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
