#include "support/tool.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "recognizers/argument_parser.h"

namespace zarn_3_3::testing_support {
namespace {

void append(std::string& list, const char* separator, const std::string& text) {
    list += (list.empty() ? "" : separator) + text;
}

std::string trimmed(const std::string& text) {
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(start, text.find_last_not_of(' ') + 1 - start);
}

}  // namespace

std::vector<Words> rowsOf(const std::string& table) {
    std::vector<Words> rows;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        Words& cells = rows.emplace_back();
        std::size_t bar = 0;
        for (; (bar = line.find(" |")) != std::string::npos; line.erase(0, bar + 2)) {
            cells.push_back(trimmed(line.substr(0, bar)));
        }
        cells.push_back(trimmed(line));
    }
    return rows;
}

Words wordsOf(const std::string& text) {
    Words words;
    std::istringstream stream(text);
    for (std::string word; stream >> word;) {
        std::replace(word.begin(), word.end(), '_', ' ');
        words.push_back(word == "''" ? "" : word);
    }
    return words;
}

bool Recorder::onOptionParse(const char* name) { return hear(std::string("option ") + name); }

bool Recorder::onValueParse(const char* name, const Value& value) {
    return hear(std::string("value ") + name + "=" + value.text);
}

bool Recorder::onUknownArgument(const char* argument) {
    return hear(std::string("unknown ") + argument);
}

bool Recorder::hear(const std::string& event) {
    append(events, "; ", event);
    return answer == nullptr || answer(event);
}

Tool::Tool(int flags) : base(IArgumentParser::m_idx - 1) {
    if (createParser(&parser, flags) != resultOk || parser->createResult(&result) != resultOk) {
        throw std::runtime_error("A tool cannot be made");
    }
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

std::string Tool::show(const Value& value) const {
    if (value.status != statusFound) {
        return "status " + std::to_string(value.status);
    }
    return (value.text == nullptr ? "" : value.text) +
           ("@" + std::to_string(value.position - base));
}

std::string Tool::walk(const char* name, int from, int to) {
    std::string found;
    for (Value value = result->get(name, number(from), number(to)); value.status == statusFound;
         value = result->next(name)) {
        append(found, " ", show(value));
    }
    return found;
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
    std::string kept;
    const char* text = nullptr;
    for (int status = result->getFirstArgument(&text); status == statusFound;
         status = result->getNextArgument(&text)) {
        kept += std::string(" ") + text;
    }
    if (!kept.empty()) {
        append(all, " ", "--" + kept);
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
