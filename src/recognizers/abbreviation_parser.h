// Recognises dashed options: names, abbreviations, "no-" forms, and values behind them.

#ifndef ZARN_RECOGNIZERS_ABBREVIATION_PARSER_H
#define ZARN_RECOGNIZERS_ABBREVIATION_PARSER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "options/name_index.h"
#include "recognizers/argument_parser.h"
#include "recognizers/argument_reading.h"

namespace zarn_3_3 {

// `parse` relies on what the `recognize` before it, on the same arguments, left here.
class AbbreviationParser final : public IArgumentParser {
public:
    AbbreviationParser(const internal::Audience& audience,
                       internal::Arguments& arguments,
                       internal::Binding& binding)
        : IArgumentParser("AbbreviationParser", audience, arguments, binding) {}

    int recognize(std::vector<std::string>& args,
                  RegisteredOptionStorage& registry,
                  std::string& error) override;
    int getPriority() override { return -10; }

private:
    bool recognizeName(const std::string& argument, RegisteredOptionStorage& registry);
    void listCandidates(const std::string& argument, const RegisteredOptionStorage& registry);
    const OptionDescription* match(RegisteredOptionStorage& registry,
                                   std::size_t& optionIndex,
                                   std::string& error) override;
    [[gnu::cold]] void tellProblem(std::string& error);
    int decideValue(const OptionDescription& option, std::string& error);
    [[gnu::cold]] int refuseValue(const OptionDescription& option, std::string& error);
    int takeNextArgument(const OptionDescription& option, std::string& error);
    int bind(const OptionDescription& option,
             IResultCollector* collector,
             std::string& error) override;

    std::size_t matchIndex = internal::NameIndex::none;
    std::string candidates;          // tied names, quoted; empty unless the argument is ambiguous
    std::string_view matchName;      // the name or "no-" form that was matched
    std::size_t argumentCount_ = 1;  // 2 when the value is the next argument

    // Views into the arguments in front, which stay where they are until they are taken.
    internal::CutOption cut_;  // its value, once that is decided: attached, or the next argument
};

// Appends the names and the "no-" forms of booleans that begin with `beginning`, each once, in the
// order of declaration.
[[gnu::cold]] void makeOptionNamesList(const RegisteredOptionStorage& registry,
                                       std::string_view beginning,
                                       std::vector<std::string>& names);

}  // namespace zarn_3_3

#endif  // ZARN_RECOGNIZERS_ABBREVIATION_PARSER_H
