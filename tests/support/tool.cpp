#include "support/tool.h"

namespace zarn_3_3::testing_support {

bool Recorder::hear(const std::string& event) {
    events += (events.empty() ? "" : "; ") + event;
    return answer == nullptr || answer(event);
}

Tool::Tool(int flags) {
    createParser(&parser, flags);
    parser->createResult(&result);
}

Tool::~Tool() {
    result->destroy();
    parser->destroy();
}

IOption& Tool::option(const std::string& names, das_variant_type_t type) {
    return parser->option(names.c_str(), "", type, "");
}

Recorder& Tool::listen() {
    parser->addHandler(&handler);
    return handler;
}

int Tool::parse(const Words& arguments) {
    std::vector<const char*> argv{"tool"};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    return parser->parseArgsVector(static_cast<int>(argv.size()), argv.data(), result);
}

std::string Tool::values(const char* name) {
    std::string texts;
    for (Value value = result->get(name, 0, INT_MAX); value.as<const char*>() != nullptr;
         value = result->next(name)) {
        texts += (texts.empty() ? "" : "|") + std::string(value.text);
    }
    return texts;
}

void Tool::startNewResult() {
    result->destroy();
    parser->createResult(&result);
}

}  // namespace zarn_3_3::testing_support
