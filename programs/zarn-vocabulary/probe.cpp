#include "probe.h"

#include <memory>
#include <new>
#include <sstream>

#include "names.h"
#include "zarn/tooling.h"
#include "zarn/zarn.h"

namespace vocabulary {
namespace {

struct Destroy {
    void operator()(zarn::IParseResult* result) const { result->destroy(); }
};

using OwnedResult = std::unique_ptr<zarn::IParseResult, Destroy>;

OwnedResult makeResult(zarn::Parser& parser) {
    zarn::IParseResult* made = nullptr;
    if (parser->createResult(&made) != zarn::resultOk) {
        throw std::bad_alloc();
    }
    return OwnedResult(made);
}

}  // namespace

Probe Probe::ofNames(const std::vector<Item>& items) {
    Probe probe;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isBoolean = items[i].type == Type::boolean;
        // Synonyms, since the names of a declaration are cut at commas, and refused when taken.
        zarn::IOption& item =
            probe.parser_->option("", "", isBoolean ? zarn::vtBool : zarn::vtNull, "");
        for (const std::string& name : items[i].names) {
            item.synonym(name.c_str());
        }
        probe.items_.emplace(primaryName(items[i]), i);
    }
    return probe;
}

Probe Probe::ofValues(const Item& item) {
    Probe probe;
    zarn::IOption& option = probe.parser_->option("v", "", zarn::vtString, "");
    for (const std::string& value : item.values) {
        option.allowValue(value.c_str());
    }
    for (const DeprecatedValue& deprecated : item.deprecated) {
        option.allowValue(deprecated.value.c_str());
    }
    option.tokenize(0);
    probe.items_.emplace("v", 0);
    return probe;
}

// Into a result of its own: what piles up in one would be looked through with each argument. A text
// it is since no defaults are recorded for one, item by item.
Meaning Probe::ask(const std::string& argument) {
    heard_ = {};
    const zarn::Registration hearing(parser_, *this);
    const OwnedResult result = makeResult(parser_);
    const int code = parser_->parseStream(argument.c_str(), result.get());
    return code == zarn::resultOk ? heard_ : Meaning();
}

bool Probe::onOptionParse(const char* name) {
    heard_.item = items_.at(name);
    return true;
}

bool Probe::onValueParse(const char* /*name*/, const zarn::Value& value) {
    heard_.value = value.text;
    return true;
}

std::vector<std::string> Probe::candidates() {
    zarn::Diagnostic diagnostic{};
    diagnostic.size = sizeof diagnostic;
    std::vector<std::string> candidates;
    zarn::IParser& parser = parser_;
    if (zarn::lastDiagnostic(&parser, &diagnostic) == zarn::toolingDone &&
        (diagnostic.kind == zarn::ambiguousOption || diagnostic.kind == zarn::ambiguousValue)) {
        std::istringstream lines(diagnostic.candidates);
        for (std::string line; std::getline(lines, line);) {
            candidates.push_back(line);
        }
    }
    return candidates;
}

}  // namespace vocabulary
