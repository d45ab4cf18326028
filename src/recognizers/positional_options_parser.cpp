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
    const bool takesRest = (flags_ & flagPositionalTakesRest) != 0;
    // Each argument is an occurrence of its own. Behind the first one nothing is recognised any
    // more: this is how a tool passes the rest of its line on to another one.
    do {
        if (audience_.isThere()) {
            audience_.handler.onOptionParse(firstItem_->primaryName().c_str());
        }
        const int code = parseValueAndAddOption(arguments_.front(), error, option, collector);
        if (code != resultOk) {
            return code;
        }
        take();
    } while (takesRest && !arguments_.isEmpty());
    return resultOk;
}

}  // namespace zarn_3_3
