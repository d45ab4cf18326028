#include "modern/outcome.h"

#include <algorithm>
#include <utility>

namespace zarn_3_3::internal {

StoredOutcome::StoredOutcome(Vocabulary& vocabulary) : vocabulary_(vocabulary) {
    // The vocabulary is kept alive: names are looked up in it, and defaults stand there.
    plain = &result_;
    vocabulary.share();
}

void StoredOutcome::end(int resultCode, std::string message) {
    code = resultCode;
    message_ = resultCode == resultOk ? "" : std::move(message);
    text = message_.c_str();
}

int StoredOutcome::Values::positionOf(std::size_t index) const {
    const std::size_t at = begin + index;
    return entry->size() == 0 ? entry->occurrence(at) : entry->positionOf(at);
}

Value StoredOutcome::Values::operator[](std::size_t index) const {
    // An occurrence of a switch: found, and true when it is read as a bool.
    if (entry->size() == 0) {
        return {nullptr, variant_t(), positionOf(index)};
    }
    return (*entry)[begin + index];
}

StoredOutcome::Values StoredOutcome::valuesOf(const StoredOption* entry) {
    if (entry == nullptr) {
        return {};
    }
    return {entry, 0, entry->size() == 0 ? entry->occurrences() : entry->size()};
}

StoredOutcome::Values StoredOutcome::aside(const ItemRecord& item, Origin origin) const {
    // A handful at most: those from the environment, and one for each positional item.
    for (const Aside& each : asides_) {
        if (each.item == &item && each.origin == origin) {
            return valuesOf(each.result->find(item.primaryName()));
        }
    }
    return {};
}

// Of several positional items all arguments are stored under the first: each has its own of them,
// the last one the rest.
StoredOutcome::Values StoredOutcome::shareOf(const ItemRecord& item) const {
    const auto& group = vocabulary_.positionals();
    // A single one is stored as every other item, and so is one that was declared plainly.
    if (item.role != Role::positional || item.isPlain || group.size() == 1) {
        return {};
    }
    // Its values were parsed again, as what they are, when they came in.
    if (item.needsOwnParse()) {
        return aside(item, Origin::commandLine);
    }
    Values values = valuesOf(result_.find(group.front()->primaryName()));
    const auto place = std::find(group.begin(), group.end(), &item) - group.begin();
    values.begin = std::min(static_cast<std::size_t>(place), values.end);
    if (&item != group.back()) {
        values.end = std::min(values.begin + 1, values.end);
    }
    return values;
}

// Whether the value at the position counts more than the other: what an option file says counts
// less.
bool StoredOutcome::counts(int position, int other) const {
    // Positions rise in the order of reading, and files are read behind the command line that names
    // them.
    const bool isFromFile = result_.isFromFile(position);
    return isFromFile == result_.isFromFile(other) ? position > other : !isFromFile;
}

// The index of the one that counts, of at least one.
std::size_t StoredOutcome::countingOf(const Values& values) const {
    // From the back: without files the last one counts, and nothing else is looked at.
    std::size_t counting = values.size() - 1;
    for (std::size_t i = counting; i > 0 && result_.isFromFile(values.positionOf(counting)); --i) {
        if (counts(values.positionOf(i - 1), values.positionOf(counting))) {
            counting = i - 1;
        }
    }
    return counting;
}

Found StoredOutcome::choose(std::string_view name,
                            const ItemRecord& item,
                            std::vector<Value>* all) const {
    const Values share = shareOf(item);
    const StoredOption* const entry = result_.find(name);
    if (entry == nullptr && share.size() == 0 && asides_.empty()) {
        return {};  // as most options of a tool
    }
    // What is stored under the first of a group belongs to all of it, and comes in by the share.
    Values own = &item == vocabulary_.firstOfGroup() ? Values() : valuesOf(entry);
    const bool isFromOutside = own.size() + share.size() == 0;
    if (isFromOutside) {
        own = aside(item, Origin::environment);
        if (own.size() == 0) {
            return chooseDefault(entry, all);
        }
    }
    Found found;
    for (const Values& values : {share, own}) {
        if (values.size() == 0) {
            continue;
        }
        found.count += values.size();
        const Value last = values[countingOf(values)];
        if (found.last.status != statusFound || counts(last.position, found.last.position)) {
            found.last = item.replaced(last);
        }
    }
    if (all != nullptr) {
        appendInOrder(share, own, item, *all);
    }
    const bool isFile = !isFromOutside && result_.isFromFile(found.last.position);
    found.origin = isFromOutside ? Origin::environment
                   : isFile      ? Origin::optionFile
                                 : Origin::commandLine;
    return found;
}

// Given by place and by name: each lot is in order, and all of them are to be.
void StoredOutcome::appendInOrder(const Values& share,
                                  const Values& own,
                                  const ItemRecord& item,
                                  std::vector<Value>& all) {
    std::size_t shared = 0;
    for (std::size_t i = 0; i < share.size() + own.size(); ++i) {
        const std::size_t owned = i - shared;
        const bool isShared =
            shared < share.size() &&
            (owned == own.size() || share.positionOf(shared) < own.positionOf(owned));
        all.push_back(item.replaced(isShared ? share[shared] : own[owned]));
        shared += isShared ? 1 : 0;
    }
}

Found StoredOutcome::chooseDefault(const StoredOption* entry, std::vector<Value>* all) {
    if (entry == nullptr || !entry->isDefaultOnly()) {
        return {};
    }
    const Value last(entry->defaultText, entry->defaultVariant, entry->defaultPosition);
    if (all != nullptr) {
        all->push_back(last);
    }
    return {Origin::byDefault, last, 1};
}

Found StoredOutcome::find(const char* name, std::vector<Value>* all) const {
    const std::string_view asked = name == nullptr ? "" : name;
    return choose(asked, vocabulary_.require(asked), all);
}

Found StoredOutcome::find(const ItemRecord& item, std::vector<Value>* all) const {
    return choose(item.primaryName(), item, all);
}

Origin StoredOutcome::origin(const ItemRecord& item) const { return find(item, nullptr).origin; }

}  // namespace zarn_3_3::internal
