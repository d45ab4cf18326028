#include "declared_tool.h"

#include <algorithm>
#include <memory>

#include "zarn/zarn.h"

namespace vocabulary {
namespace {

constexpr zarn::das_variant_type_t typeCodes[] = {zarn::vtNull,
                                                  zarn::vtBool,
                                                  zarn::vtS32,
                                                  zarn::vtU32,
                                                  zarn::vtS64,
                                                  zarn::vtU64,
                                                  zarn::vtDouble,
                                                  zarn::vtString};

zarn::variant_t valueOf(Type type, const std::string& text) {
    switch (type) {
        case Type::boolean:
            return text == "1";
        case Type::int32:
            return std::stoi(text);
        case Type::uint32:
            return static_cast<unsigned>(std::stoul(text));
        case Type::int64:
            return std::stoll(text);
        case Type::uint64:
            return std::stoull(text);
        case Type::real:
            return std::stod(text);
        default:
            return text.c_str();
    }
}

std::string commaList(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ",") + text;
    }
    return list;
}

void declareItem(zarn::IParser& parser, const Item& item) {
    const char* const name = item.names.front().c_str();
    const auto type = typeCodes[static_cast<std::size_t>(item.type)];
    zarn::IOption& option = item.kind == Kind::action
                                ? parser.action(name, "", type, "")
                                : parser.modifier(name, commaList(item.tags).c_str(), "", type, "");
    for (std::size_t i = 1; i < item.names.size(); ++i) {
        option.synonym(item.names[i].c_str());
    }
    for (const std::string& value : item.values) {
        option.allowValue(valueOf(item.type, value));
    }
    // It is read like an allowed one; of the warnings nobody wants to hear here.
    for (const DeprecatedValue& deprecated : item.deprecated) {
        option.allowValue(valueOf(item.type, deprecated.value));
    }
    option.tokenize(item.separator.empty() ? '\0' : item.separator.front());
    if (!item.defaultValue.empty()) {
        option.defaultValue(valueOf(item.type, item.defaultValue));
    }
    if (item.isPositional) {
        option.positional();
    }
}

struct Destroy {
    void operator()(zarn::IParseResult* result) const { result->destroy(); }
};

}  // namespace

DeclaredTool::DeclaredTool(const Description& description)
    : description_(description), parser_({}, description.flags) {
    for (const Item& item : description.items) {
        declareItem(parser_, item);
    }
    for (const auto& group : description.groups) {
        parser_->allowSimultaneousActions({group.begin(), group.end()});
    }
}

Reading DeclaredTool::read(const std::vector<std::string>& line) {
    const zarn::Registration hearing(parser_, *this);
    reading_ = {};
    pending_.clear();
    zarn::IParseResult* made = nullptr;
    parser_->createResult(&made);
    const std::unique_ptr<zarn::IParseResult, Destroy> result(made);
    std::vector<const char*> words{"tool"};
    for (const std::string& word : line) {
        words.push_back(word.c_str());
    }
    reading_.code =
        parser_->parseArgsVector(static_cast<int>(words.size()), words.data(), result.get());
    endOccurrence();
    noteDefaults(*result);
    return reading_;
}

// A positional argument is announced with the name of another item, but then has a value.
bool DeclaredTool::onOptionParse(const char* name) {
    endOccurrence();
    pending_ = name;
    return true;
}

bool DeclaredTool::onValueParse(const char* name, const zarn::Value& value) {
    pending_.clear();
    reading_.given.emplace_back(name, value.text);
    return true;
}

bool DeclaredTool::onUknownArgument(const char* /*argument*/) {
    reading_.isUnknownSkipped = true;
    return true;
}

// A switch that is on is like a boolean that is.
void DeclaredTool::endOccurrence() {
    if (!pending_.empty()) {
        reading_.given.emplace_back(pending_, "1");
    }
    pending_.clear();
}

void DeclaredTool::noteDefaults(zarn::IParseResult& result) {
    for (const Item& item : description_.items) {
        const std::string& name = item.names.front();
        const bool isGiven = std::any_of(reading_.given.begin(),
                                         reading_.given.end(),
                                         [&](const auto& given) { return given.first == name; });
        if (item.type != Type::toggle && !isGiven) {
            const zarn::Value value = result.get(name.c_str(), 0, zarn::lineEnd);
            reading_.defaults.emplace_back(name, value.text == nullptr ? "" : value.text);
        }
    }
}

}  // namespace vocabulary
