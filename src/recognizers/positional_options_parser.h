// Recognises the arguments that are no options, for the item declared positional.

#ifndef ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
#define ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H

#include <cstddef>
#include <string>
#include <vector>

#include "recognizers/argument_parser.h"

namespace zarn_3_3 {

// With flagPositionalTakesRest `parse` does not stop after one argument: it goes on until the
// source is empty.
class PositionalOptionsParser final : public IArgumentParser {
public:
    PositionalOptionsParser(EventHandler& eventHandler,
                            const internal::HandlerSet& whoListens,
                            int creationFlags,
                            internal::ArgumentSource& rest);

    int recognize(std::vector<std::string>& args,
                  RegisteredOptionStorage& registry,
                  std::string& error) override;
    int parse(std::vector<std::string>& args,
              IResultCollector* collector,
              RegisteredOptionStorage& registry,
              std::size_t& optionIndex,
              std::string& error) override;
    int getPriority() override { return -100; }

private:
    int parseArguments(const OptionDescription& option,
                       std::vector<std::string>& args,
                       IResultCollector* collector,
                       const RegisteredOptionStorage& registry,
                       std::string& error);
};

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
