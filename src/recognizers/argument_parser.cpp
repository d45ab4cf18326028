// The way of a value: an occurrence is bound as a whole or not at all. It gets its number, its text
// is cut into pieces, each piece is checked, converted, numbered and announced, and only behind the
// last one the result hears of it. What fails in between leaves numbers that nothing has.

#include "recognizers/argument_parser.h"

#include <stdexcept>
#include <utility>

#include "recognizers/failure.h"
#include "recognizers/messages.h"
#include "result/result_collector.h"
#include "result/sequence.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

std::atomic<int>& IArgumentParser::m_idx = Sequence::next;

std::string IArgumentParser::formatTokenMessage(std::string& token) {
    return messages::inArgument(token);
}

int IArgumentParser::parse(std::vector<std::string>& args,
                           IResultCollector* collector,
                           RegisteredOptionStorage& registry,
                           std::size_t& optionIndex,
                           std::string& error) {
    trace(name, ": parsing argument '", args[0], "'");
    const OptionDescription* const option = match(registry, optionIndex, error);
    if (option == nullptr) {
        return resultRuleBroken;
    }
    binding_.texts.turnTo(optionIndex);
    return mayChange(*option, optionIndex, registry) ? bindCopy(*option, collector, error)
                                                     : bind(*option, collector, error);
}

// Handlers may go on with the settings of the item, or declare the next one, and must not change
// the rules in the middle of an occurrence.
int IArgumentParser::bindCopy(const OptionDescription& option,
                              IResultCollector* collector,
                              std::string& error) {
    const OptionDescription copy = option.forBinding();
    return bind(copy, collector, error);
}

// Client code may run while an occurrence is bound: where it is observed, or else in a stream to
// which the warning about a deprecated value is written. Then the arguments are made safe from it,
// and the answer is whether it could change the item too.
bool IArgumentParser::mayChange(const OptionDescription& option,
                                std::size_t index,
                                const RegisteredOptionStorage& registry) {
    if (!isObserved() && option.deprecatedValues.empty()) {
        return false;
    }
    arguments_.secure();
    return registry.isOpen(index);
}

int IArgumentParser::refuse(DiagnosticKind kind,
                            const OptionDescription& option,
                            std::string_view value,
                            std::string reason,
                            std::string& error) const {
    trace(name, ": ", reason);
    error = std::move(reason);
    note(kind, option.primaryName(), value);
    return resultRuleBroken;
}

void IArgumentParser::noteFront(DiagnosticKind kind,
                                std::string_view option,
                                std::string_view value) const {
    audience_.failure.make(kind, arguments_.placeOfFront(), arguments_.front(), option, value);
}

// A value that stands in an argument of its own is what failed, but where it was not taken for one.
void IArgumentParser::note(DiagnosticKind kind,
                           std::string_view option,
                           std::string_view value) const {
    const std::vector<std::string>& window = arguments_.window();
    const bool isApart =
        kind != valueLooksLikeOption && window.size() > 1 && placeIn(window[1], value) != elsewhere;
    if (isApart) {
        audience_.failure.make(kind, arguments_.placeOfSecond(), window[1], option, value);
    } else {
        noteFront(kind, option, value);
    }
}

void IArgumentParser::take() {
    trace(name, ": removing argument: '", arguments_.front(), "'");
    arguments_.take();
}

int IArgumentParser::parseValueAndAddOption(std::string_view value,
                                            std::string& error,
                                            const OptionDescription& option,
                                            IResultCollector* collector) {
    // The number of the occurrence is drawn before those of its values: in the order of a result it
    // stands in front of them.
    OptionData& occurrence = binding_.occurrence;
    occurrence.position = Sequence::draw();
    occurrence.values.clear();
    if (!value.empty()) {
        trace(name, ": adding values to result container:");
        const int code = bindPieces(value, option, error);
        if (code != resultOk) {
            return code;
        }
    }
    // Without a result, arguments can be checked and announced as ever.
    if (collector == nullptr) {
        throw std::invalid_argument("There is no result to store into");
    }
    collector->store(option, occurrence);
    trace(name, ": stored option to result container.");
    return resultOk;
}

void IArgumentParser::storeText(std::string_view text,
                                const OptionDescription& option,
                                IResultCollector& collector) {
    OptionData& occurrence = binding_.occurrence;
    occurrence.position = Sequence::draw();
    occurrence.values.clear();
    OptionValue& value = occurrence.values.emplace_back();
    value.value = binding_.texts.keep(text);
    value.position = Sequence::draw();
    collector.store(option, occurrence);
}

int IArgumentParser::bindPieces(std::string_view value,
                                const OptionDescription& option,
                                std::string& error) {
    const char separator = option.tokenizer;
    if (separator == 0) {
        trace(name, ": not using tokenizer");
        return bindPiece(value, value, option, error);
    }
    trace(name, ": using tokenizer on char: '", std::string_view(&separator, 1), "'");
    // Separators in a row count as one, and those at the ends as none: there are no empty pieces. A
    // value that is nothing else is an error.
    std::size_t start = value.find_first_not_of(separator);
    if (start == std::string_view::npos) {
        return refuse(nothingButSeparators,
                      option,
                      value,
                      messages::noValueParsed(value, option.primaryName()),
                      error);
    }
    while (start != std::string_view::npos) {
        const std::size_t end = value.find(separator, start);
        const std::string_view piece = value.substr(start, end - start);
        trace(name, ": value is: '", piece, "'");
        const int code = bindPiece(piece, value, option, error);
        if (code != resultOk) {
            return code;
        }
        trace(name,
              ": sent event on value parsed, option: '",
              option.primaryName(),
              "', value: '",
              binding_.occurrence.values.back().text,
              "'");
        start = end == std::string_view::npos ? end : value.find_first_not_of(separator, end);
    }
    return resultOk;
}

int IArgumentParser::bindPiece(std::string_view piece,
                               std::string_view value,
                               const OptionDescription& option,
                               std::string& error) {
    OptionValue& bound = binding_.occurrence.values.emplace_back();
    bound.text = piece;
    // What is wrong about the value is known to the item; which argument it stands in, only here.
    const DiagnosticKind problem =
        option.validate(bound.text, bound.value, error, textLocale(), binding_.texts);
    if (problem != noFailure) {
        return refuse(
            problem, option, piece, messages::invalidValue(arguments_.front(), error), error);
    }
    bound.position = Sequence::draw();
    if (!audience_.isThere() || isWelcome(bound, option.primaryName())) {
        return resultOk;
    }
    error = messages::vetoedValue(value, option.primaryName(), arguments_.front());
    trace(name, error, messages::handlerVetoed);  // kept: nothing behind the name
    note(valueRefused, option.primaryName(), piece);
    return resultVetoed;
}

bool IArgumentParser::isWelcome(const OptionValue& value, const std::string& option) const {
    // A text that the value holds has a terminator already; others are views into the argument.
    const char* const held = plinth2::get_variant_value(value.value, nullptr);
    const std::string copy(held == nullptr ? value.text : "");  // with a terminator
    const Value announced(held == nullptr ? copy.c_str() : held, value.value, value.position);
    return audience_.handler.onValueParse(option.c_str(), announced);
}

}  // namespace zarn_3_3
