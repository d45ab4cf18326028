#include "recognizers/positional_options_parser.h"

#include "log/zarn_log.h"
#include "options/registered_option_storage.h"
#include "recognizers/argument_reading.h"
#include "zarn/event_handler.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

using namespace internal;

int PositionalOptionsParser::recognize(std::vector<std::string>& args,
                                       RegisteredOptionStorage& registry,
                                       std::string& /*error*/) {
    const std::string& argument = args[0];
    trace(name, ": recognizing argument '", argument, "'");
    return isForPositional(argument, flags_, registry) ? recognized : declined;
}

const OptionDescription* PositionalOptionsParser::match(RegisteredOptionStorage& registry,
                                                        std::size_t& optionIndex,
                                                        std::string& /*error*/) {
    optionIndex = registry.firstPositional();
    // Kept: the log and onOptionParse name the item declared first, whichever that is.
    firstItem_ = &registry.items().front();
    trace(name, ": option is '", firstItem_->primaryName(), "'");
    return &registry.items()[optionIndex];
}

int PositionalOptionsParser::bind(const OptionDescription& option,
                                  IResultCollector* collector,
                                  std::string& error) {
    // Each argument is an occurrence of its own. Behind the first one of a rest nothing is
    // recognised any more: this is how a tool passes the rest of its line on to another one.
    do {
        if (audience_.isThere()) {
            audience_.handler.onOptionParse(firstItem_->primaryName().c_str());
        }
        const int code = parseValueAndAddOption(arguments_.front(), error, option, collector);
        if (code != resultOk) {
            return code;
        }
        if (isSimple(option)) {
            takeSimpleOnes(option, *collector);
        } else {
            take();
        }
    } while (reach_ == Reach::rest && !arguments_.isEmpty());
    return resultOk;
}

// Whether all that is to be done with further arguments is to store them: any text will do, and
// nobody hears of it.
bool PositionalOptionsParser::isSimple(const OptionDescription& option) const {
    return reach_ != Reach::one && option.type == vtString && option.allowedValues.empty() &&
           !isObserved();
}

// Takes the argument in front, which is stored. A list of files may be long, and needs none of the
// questions that options raise: this halves the cost of each.
void PositionalOptionsParser::takeSimpleOnes(const OptionDescription& option,
                                             IResultCollector& collector) {
    arguments_.takeWhile([&](std::string_view text) {
        const bool isSimpleOne =
            !text.empty() && (reach_ == Reach::rest || !mayBeDash(text.front())) &&
            (option.tokenizer == 0 || text.find(option.tokenizer) == std::string_view::npos);
        if (isSimpleOne) {
            storeText(text, option, collector);
        }
        return isSimpleOne;
    });
}

}  // namespace zarn_3_3
