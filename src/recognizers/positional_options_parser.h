// Recognises the arguments that are no options, for the item declared positional.

#ifndef ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
#define ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H

#include <cstddef>
#include <string>
#include <vector>

#include "recognizers/argument_parser.h"

namespace zarn_3_3 {

// With flagPositionalTakesRest `parse` does not stop after one argument: it goes on until there is
// none left.
class PositionalOptionsParser final : public IArgumentParser {
public:
    PositionalOptionsParser(const internal::Audience& audience,
                            internal::Arguments& arguments,
                            int flags)
        : IArgumentParser("PositionalOptionsParser", audience, arguments), flags_(flags) {}

    int recognize(std::vector<std::string>& args,
                  RegisteredOptionStorage& registry,
                  std::string& error) override;
    int getPriority() override { return -100; }

private:
    const OptionDescription* match(RegisteredOptionStorage& registry,
                                   std::size_t& optionIndex,
                                   std::string& error) override;
    int bind(const OptionDescription& option,
             IResultCollector* collector,
             std::string& error) override;

    int flags_;
    const OptionDescription* firstItem_ = nullptr;  // which the log and the handlers are told of
};

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
