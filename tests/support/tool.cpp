#include "support/tool.h"

#include <algorithm>

namespace zarn_3_3::testing_support {
namespace {

void append(std::string& list, const char* separator, const std::string& text) {
    list += (list.empty() ? "" : separator) + text;
}

}  // namespace

bool Recorder::hear(const std::string& event) {
    append(events, "; ", event);
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

IOption& Tool::option(const std::string& declared, das_variant_type_t type) {
    names.push_back(declared.substr(0, declared.find(',')));
    return parser->option(declared.c_str(), "", type, "");
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

void Tool::startNewResult() {
    result->destroy();
    parser->createResult(&result);
}

std::string Tool::values(const char* name) {
    std::string texts;
    for (Value value = result->get(name, 0, INT_MAX); value.as<const char*>() != nullptr;
         value = result->next(name)) {
        append(texts, "|", value.text);
    }
    return texts;
}

std::string Tool::stored() {
    std::string all;
    for (const std::string& name : names) {
        if (result->present(name.c_str(), 0, INT_MAX)) {
            append(all, " ", storedUnder(name.c_str()));
        }
    }
    const char* text = nullptr;
    int status = result->getFirstArgument(&text);
    if (status == statusFound) {
        append(all, " ", "--");
    }
    for (; status == statusFound; status = result->getNextArgument(&text)) {
        all += std::string(" ") + text;
    }
    return all;
}

std::string Tool::storedUnder(const char* name) {
    int occurrences = 0;
    while (result->nextPosition() != INT_MAX) {
        ++occurrences;
    }
    const std::string texts = values(name);
    const auto bars = std::count(texts.begin(), texts.end(), '|');
    const bool isEven = occurrences == (texts.empty() ? 0 : bars + 1);
    return name + (texts.empty() ? "" : "=" + texts) +
           (isEven ? "" : "(" + std::to_string(occurrences) + ")");
}

}  // namespace zarn_3_3::testing_support
