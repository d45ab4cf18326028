// What a parser makes of a command line that holds what a description says.

#ifndef ZARN_TESTS_PROGRAMS_DECLARED_TOOL_H
#define ZARN_TESTS_PROGRAMS_DECLARED_TOOL_H

#include <string>
#include <utility>
#include <vector>

#include "description.h"
#include "zarn/typed.h"

namespace vocabulary {

// What a tool reads of a command line.
struct Reading {
    int code = 0;
    bool isUnknownSkipped = false;
    std::vector<std::pair<std::string, std::string>> given;     // items with their values, in order
    std::vector<std::pair<std::string, std::string>> defaults;  // of the others
};

class DeclaredTool final : private zarn::EventHandler {
public:
    // The description must outlive it.
    explicit DeclaredTool(const Description& description);

    Reading read(const std::vector<std::string>& line);

private:
    bool onOptionParse(const char* name) override;
    bool onValueParse(const char* name, const zarn::Value& value) override;
    bool onUknownArgument(const char* argument) override;

    void endOccurrence();
    void noteDefaults(zarn::IParseResult& result);

    const Description& description_;
    zarn::Parser parser_;
    Reading reading_;
    std::string pending_;
};

}  // namespace vocabulary

#endif  // ZARN_TESTS_PROGRAMS_DECLARED_TOOL_H
