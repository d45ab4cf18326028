// The one parser behind IParser.

#ifndef ZARN_PARSER_BASIC_PARSER_H
#define ZARN_PARSER_BASIC_PARSER_H

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "options/registered_option_storage.h"
#include "parser/action_groups.h"
#include "parser/passing_events.h"
#include "recognizers/failure.h"
#include "recognizers/handler_set.h"
#include "text/garbage.h"
#include "zarn/parser.h"

namespace zarn_3_3 {

class ParseResult;

namespace internal {
class Arguments;
class ParseDriver;
}  // namespace internal

// Holds the vocabulary, the handlers and the kept texts, and hands each parse to its driver. What
// the operations promise stands in IParser.
class BasicParser final : public IParser {
public:
    explicit BasicParser(int creationFlags);
    BasicParser(const BasicParser&) = delete;
    BasicParser& operator=(const BasicParser&) = delete;

    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const Value& value) override;
    bool onUknownArgument(const char* argument) override;

    void destroy() override;
    int createResult(IParseResult** out) override;

    IOption& option(const char* names,
                    const char* description,
                    das_variant_type_t type,
                    const char* section) override;
    IOption& action(const char* names,
                    const char* description,
                    das_variant_type_t type,
                    const char* section) override;
    IOption& modifier(const char* names,
                      const char* actionNames,
                      const char* description,
                      das_variant_type_t type,
                      const char* section) override;
    bool isOptionDeclared(const char* name, bool action, const char* section) override;

    int parseArgsVector(int argc, const char* const* argv, IParseResult* result) override;
    int parseStream(const char* text, IParseResult* result) override;
    const char* getErrorDesc() override;

    const char* getDescription(bool hidden) override;
    const char* getDescription(const char* topic, bool hidden) override;
    const char* getActionModifiersDescription(const char* action, bool hidden) override;
    const char* getGlobalModifiersDescription(bool hidden) override;

    bool addHandler(EventHandler* handler) override;
    bool removeHandler(EventHandler* handler) override;
    bool addOptionFileOption(const char* description, const char* section) override;
    bool allowSimultaneousActions(const std::set<std::string>& actions) override;

    ~BasicParser() override = default;

    // For the modern face, which looks names up in it.
    RegisteredOptionStorage& vocabulary() { return registry; }
    const RegisteredOptionStorage& vocabulary() const { return registry; }

    // For those who ask about the tool.
    int creationFlags() const { return flags; }
    const internal::ActionGroups& actionGroups() const { return allowedActionSets; }
    bool readsOptionFiles() const { return optionFileDeclared; }
    const char* keep(std::string_view text) { return garbage.keep(text); }

    // How the last parse has failed. The modern face puts there what it finds wrong itself.
    internal::FailureNote& failure() { return failure_; }

    // To be asked by each operation that parses, with its code, when it is about to return. Only a
    // failure of its own is left: a handler may have parsed meanwhile.
    int ended(int code);

protected:
    // Slots of the binary interface behind those of IParser. They let exceptions through.
    //
    // Each consumes `args` from the front as far as options were parsed: up to the terminator, or
    // to the argument that failed.
    virtual int parseVector(std::vector<std::string>& args, IParseResult* result);
    virtual int parse_phase_one(const std::string& terminator,
                                std::vector<std::string>& args,
                                IParseResult* result,
                                std::string& error);
    virtual int parse_phase_two(const std::string& terminator,
                                std::vector<std::string>& args,
                                IParseResult* result,
                                std::string& error);

private:
    template <typename Tell>
    void passOn(internal::EventKind kind, const char* text, const Value* value, Tell tell);

    int parseAll(internal::Arguments& arguments, ParseResult& result);
    int parseBehindOptions(internal::ParseDriver& driver,
                           internal::Arguments& arguments,
                           ParseResult& result);
    // Not three copies of what runs once in a parse.
    [[gnu::noinline]] internal::ParseDriver driverFor(ParseResult* result, std::string& error);
    template <typename Write>
    const char* keptHelp(Write write);

    RegisteredOptionStorage registry;
    Garbage garbage;
    std::string lastError;
    int flags;
    internal::HandlerSet handlers;
    internal::PassingEvents passing_;
    bool optionFileDeclared = false;
    internal::ActionGroups allowedActionSets;
    internal::FailureNote failure_;
};

}  // namespace zarn_3_3

#endif  // ZARN_PARSER_BASIC_PARSER_H
