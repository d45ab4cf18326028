// A tool as clients write them, for stories that are no scenarios.

#ifndef ZARN_TESTS_SUPPORT_TOOL_H
#define ZARN_TESTS_SUPPORT_TOOL_H

#include <climits>
#include <string>
#include <vector>

#include "zarn/zarn.h"

namespace zarn_3_3::testing_support {

// Owns a parser and a result.
class PlainTool {
public:
    explicit PlainTool(int flags = 0) {
        createParser(&parser, flags);
        parser->createResult(&result);
    }
    PlainTool(const PlainTool&) = delete;
    PlainTool& operator=(const PlainTool&) = delete;
    ~PlainTool() {
        result->destroy();
        parser->destroy();
    }

    IParser* operator->() const { return parser; }

    IOption& option(const std::string& names, das_variant_type_t type = vtString) {
        return parser->option(names.c_str(), "", type, "");
    }

    int parse(const std::vector<std::string>& arguments) {
        std::vector<const char*> argv{"tool"};
        for (const std::string& argument : arguments) {
            argv.push_back(argument.c_str());
        }
        return parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
    }

    void startNewResult() {
        result->destroy();
        parser->createResult(&result);
    }

    IParser* parser = nullptr;
    IParseResult* result = nullptr;
};

}  // namespace zarn_3_3::testing_support

#endif  // ZARN_TESTS_SUPPORT_TOOL_H
