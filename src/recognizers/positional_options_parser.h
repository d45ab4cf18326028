// Recognises the arguments that are no options, for the item declared positional.

#ifndef ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
#define ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H

#include <cstddef>
#include <string>
#include <vector>

#include "recognizers/argument_parser.h"

namespace zarn_3_3 {

// How far `parse` goes: it takes one argument; at least one, and of those behind it what can be no
// option; or all that are left.
enum class Reach { one, plainOnes, rest };

class PositionalOptionsParser final : public IArgumentParser {
public:
    PositionalOptionsParser(const internal::Audience& audience,
                            internal::Arguments& arguments,
                            internal::Binding& binding,
                            int flags,
                            Reach reach)
        : IArgumentParser("PositionalOptionsParser", audience, arguments, binding),
          flags_(flags),
          reach_(reach) {}

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
    bool isSimple(const OptionDescription& option) const;
    void takeSimpleOnes(const OptionDescription& option, IResultCollector& collector);

    int flags_;
    Reach reach_;
    const OptionDescription* firstItem_ = nullptr;  // which the log and the handlers are told of
};

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_POSITIONAL_OPTIONS_PARSER_H
