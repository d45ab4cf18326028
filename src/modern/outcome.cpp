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
StoredOutcome::Values StoredOutcome::shareOf(const ItemRecord& item) const {
    const auto& group = vocabulary_.positionals();
    if (item.role != Role::positional || group.size() == 1) {
        return {};
    }
    if (item.needsOwnParse()) {
        return aside(item, Origin::commandLine);
    }
    Values values = under(result_, group.front()->primaryName());
    const auto place = std::find(group.begin(), group.end(), &item) - group.begin();
    values.begin = std::min(static_cast<std::size_t>(place), values.end);
    if (&item != group.back()) {
        values.end = std::min(values.begin + 1, values.end);
    }
    return values;
}

// Whether the value counts more than the other: what an option file says counts less.
bool StoredOutcome::counts(const Value& value, const Value& other) const {
    const bool isFromFile = result_.isFromFile(value.position);
    return isFromFile == result_.isFromFile(other.position) ? value.position > other.position
                                                            : !isFromFile;
}

// Leaves in `last` the value of all these, and of those before, that counts.
void StoredOutcome::keepLast(const Values& values, const ItemRecord* item, Value& last) const {
    for (std::size_t i = values.end - values.begin; i > 0; --i) {
        const Value value = values[i - 1];
        if (last.status != statusFound || counts(value, last)) {
            last = item != nullptr ? item->replaced(value) : value;
        }
        if (!result_.isFromFile(value.position)) {
            return;  // those before count less
        }
    }
}

Origin StoredOutcome::choose(const std::string& name,
                             const ItemRecord* item,
                             Value& last,
                             std::vector<Value>* all) const {
    last = Value();
    Values own = under(result_, name);
    Values share;
    Origin origin = Origin::commandLine;
    if (item != nullptr) {
        share = shareOf(*item);
        const bool isSharing = item == vocabulary_.firstOfGroup();
        own = isSharing ? Values() : own;
        if (own.empty() && share.empty()) {
            own = aside(*item, Origin::environment);
            origin = Origin::environment;
        }
    }
    for (const Values& values : {share, own}) {
        keepLast(values, item, last);
        for (std::size_t i = 0; all != nullptr && i < values.end - values.begin; ++i) {
            all->push_back(item != nullptr ? item->replaced(values[i]) : values[i]);
        }
    }
    if (last.status != statusFound) {
        return chooseDefault(name, last, all);
    }
    if (all != nullptr && !share.empty() && !own.empty()) {
        std::sort(all->begin(), all->end(), [](const Value& a, const Value& b) {
            return a.position < b.position;
        });
    }
    const bool isFile = origin == Origin::commandLine && result_.isFromFile(last.position);
    return isFile ? Origin::optionFile : origin;
}

Origin StoredOutcome::chooseDefault(const std::string& name,
                                    Value& last,
                                    std::vector<Value>* all) const {
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
    vocabulary_.require(name);
    const StoredOption* const entry = result_.find(name);
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
