#include "recognizers/argument_parser.h"

#include <stdexcept>

#include "recognizers/messages.h"
#include "result/option_data.h"
#include "result/result_collector.h"
#include "result/sequence.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

std::atomic<int>& IArgumentParser::m_idx = Sequence::next;

IArgumentParser::IArgumentParser(EventHandler& eventHandler,
                                 const HandlerSet& whoListens,
                                 int creationFlags,
                                 ArgumentSource& rest)
    : handler(eventHandler),
      listeners(whoListens),
      flags(creationFlags),
      source(rest),
      data(std::make_unique<OptionData>()) {}

IArgumentParser::~IArgumentParser() = default;

std::string IArgumentParser::formatTokenMessage(std::string& token) {
    return messages::inArgument(token);
}

int IArgumentParser::refuse(const std::string& error) const {
    trace(name, ": ", error);
    return resultRuleBroken;
}

void IArgumentParser::removeFront(std::vector<std::string>& args) {
    trace(name, ": removing argument: '", args[0], "'");
    source.removeFront(args);
}

// One occurrence on its way into the result.
struct IArgumentParser::Binding {
    std::string_view value;
    const std::string& option;  // the primary name
    const OptionDescription& description;
    const std::string& argument;
    OptionData& data;
    std::string& error;
};

int IArgumentParser::parseValueAndAddOption(std::string_view value,
                                            std::string& error,
                                            const OptionDescription& option,
                                            std::vector<std::string>& args,
                                            IResultCollector* collector) {
    data->positions.assign(1, Sequence::draw());
    data->values.clear();
    if (!value.empty()) {
        const Binding binding{value, option.primaryName(), option, args[0], *data, error};
        trace(name, ": adding values to result container:");
        const int code = bindPieces(binding, option.tokenizer);
        if (code != resultOk) {
            return code;
        }
    }
    if (collector == nullptr) {
        throw std::invalid_argument("There is no result to store into");
    }
    collector->store(option, *data);
    trace(name, ": stored option to result container.");
    return resultOk;
}

int IArgumentParser::bindPieces(const Binding& binding, char separator) {
    const std::string_view value = binding.value;
    if (separator == 0) {
        trace(name, ": not using tokenizer");
        return bindPiece(binding, value);
    }
    trace(name, ": using tokenizer on char: '", std::string_view(&separator, 1), "'");
    std::size_t start = value.find_first_not_of(separator);
    if (start == std::string_view::npos) {
        binding.error = messages::noValueParsed(value, binding.option);
        return refuse(binding.error);
    }
    while (start != std::string_view::npos) {
        const std::size_t end = value.find(separator, start);
        const std::string_view piece = value.substr(start, end - start);
        trace(name, ": value is: '", piece, "'");
        const int code = bindPiece(binding, piece);
        if (code != resultOk) {
            return code;
        }
        trace(name,
              ": sent event on value parsed, option: '",
              binding.option,
              "', value: '",
              binding.data.values.back().text,
              "'");
        start = end == std::string_view::npos ? end : value.find_first_not_of(separator, end);
    }
    return resultOk;
}

int IArgumentParser::bindPiece(const Binding& binding, std::string_view piece) {
    OptionValue& bound = binding.data.values.emplace_back();
    bound.text = piece;
    if (!binding.description.validate(bound.text, bound.value, binding.error, textLocale())) {
        binding.error = messages::invalidValue(binding.argument, binding.error);
        return refuse(binding.error);
    }
    bound.position = Sequence::draw();
    return isHeard() ? announce(binding, bound) : resultOk;
}

int IArgumentParser::announce(const Binding& binding, const OptionValue& value) {
    const char* const held = plinth2::get_variant_value(value.value, nullptr);
    const std::string copy(held == nullptr ? value.text : "");  // with a terminator
    const Value announced(held == nullptr ? copy.c_str() : held, value.value, value.position);
    if (handler.onValueParse(binding.option.c_str(), announced)) {
        return resultOk;
    }
    binding.error = messages::vetoedValue(binding.value, binding.option, binding.argument);
    trace(name, binding.error, messages::handlerVetoed);  // kept: nothing behind the name
    return resultVetoed;
}

}  // namespace zarn_3_3
