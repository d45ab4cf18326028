#include "modern/outcome.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zarn_3_3::internal {

StoredOutcome::StoredOutcome(Vocabulary& vocabulary) : vocabulary_(vocabulary) {
    plain = &result_;
    vocabulary.share();
}

void StoredOutcome::end(int resultCode, std::string message) {
    code = resultCode;
    message_ = resultCode == resultOk ? "" : std::move(message);
    text = message_.c_str();
}

Value StoredOutcome::Values::operator[](std::size_t index) const {
    const std::size_t at = begin + index;
    if (entry->values.empty()) {
        return {nullptr, variant_t(), entry->positions[at]};
    }
    const StoredValue& value = entry->values[at];
    return {value.text, value.value, value.position};
}

StoredOutcome::Values StoredOutcome::under(const ParseResult& result, std::string_view name) {
    const StoredOption* const entry = result.find(name);
    if (entry == nullptr) {
        return {};
    }
    return {entry, 0, entry->values.empty() ? entry->positions.size() : entry->values.size()};
}

StoredOutcome::Values StoredOutcome::aside(const ItemRecord& item, Origin origin) const {
    for (const Aside& each : asides_) {
        if (each.item == &item && each.origin == origin) {
            return under(*each.result, item.primaryName());
        }
    }
    return {};
}

// Of several positional items all arguments are stored under the first: each has its own of them,
// the last one the rest.
StoredOutcome::Values StoredOutcome::ofItem(const ItemRecord& item) const {
    const auto& group = vocabulary_.positionals();
    Values values = under(result_, item.primaryName());
    if (item.role != Role::positional || group.size() == 1 ||
        (&item != group.front() && !values.empty())) {
        return values;
    }
    if (item.needsOwnParse()) {
        return aside(item, Origin::commandLine);
    }
    values = under(result_, group.front()->primaryName());
    const auto number =
        static_cast<std::size_t>(std::find(group.begin(), group.end(), &item) - group.begin());
    values.begin = std::min(number, values.end);
    values.end = &item == group.back() ? values.end : std::min(number + 1, values.end);
    return values;
}

// The index of the last value that is from no option file, or of the last one.
std::size_t StoredOutcome::lastOfLine(const Values& values) const {
    const std::size_t count = values.end - values.begin;
    for (std::size_t i = count; i > 0; --i) {
        if (!result_.isFromFile(values[i - 1].position)) {
            return i - 1;
        }
    }
    return count - 1;
}

Origin StoredOutcome::choose(const std::string& name,
                             const ItemRecord* item,
                             Value& last,
                             std::vector<Value>* all) const {
    Values values = item != nullptr ? ofItem(*item) : under(result_, name);
    Origin origin = Origin::commandLine;
    if (values.empty() && item != nullptr) {
        values = aside(*item, Origin::environment);
        origin = Origin::environment;
    }
    if (values.empty()) {
        const StoredOption* const entry = result_.find(name);
        if (entry == nullptr || !entry->isDefaultOnly()) {
            return Origin::absent;
        }
        last = Value(entry->defaultText, entry->defaultVariant, entry->defaultPosition);
        if (all != nullptr) {
            all->push_back(last);
        }
        return Origin::byDefault;
    }
    const auto read = [&](std::size_t index) {
        return item != nullptr ? item->replaced(values[index]) : values[index];
    };
    const bool isTyped = origin == Origin::commandLine;
    last = read(isTyped ? lastOfLine(values) : values.end - values.begin - 1);
    for (std::size_t i = 0; all != nullptr && i < values.end - values.begin; ++i) {
        all->push_back(read(i));
    }
    return isTyped && result_.isFromFile(last.position) ? Origin::optionFile : origin;
}

Origin StoredOutcome::find(const char* name, Value& last, std::vector<Value>* all) const {
    const std::string asked = name == nullptr ? "" : name;
    return choose(asked, vocabulary_.require(asked), last, all);
}

Origin StoredOutcome::find(const ItemRecord& item, Value& last, std::vector<Value>* all) const {
    return choose(item.primaryName(), &item, last, all);
}

Origin StoredOutcome::origin(const ItemRecord& item) const {
    Value ignored;
    return find(item, ignored, nullptr);
}

// A value belongs to the last occurrence before it. What is there already stays.
void StoredOutcome::addOccurrences(const char* name, std::map<int, Occurrence>& occurrences) const {
    const std::string asked = name == nullptr ? "" : name;
    vocabulary_.require(asked);
    const StoredOption* const entry = result_.find(asked);
    if (entry == nullptr) {
        return;
    }
    std::map<int, Occurrence> found;
    for (const int position : entry->positions) {
        found.emplace(position, Occurrence{name, position, {}});
    }
    for (const StoredValue& value : entry->values) {
        const auto owner = found.upper_bound(value.position);
        if (owner != found.begin()) {
            std::prev(owner)->second.values.emplace_back(value.text, value.value, value.position);
        }
    }
    occurrences.merge(found);
}

}  // namespace zarn_3_3::internal
