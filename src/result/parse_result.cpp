// How a result is filled. How it is read: result_queries.cpp.

#include "result/parse_result.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "options/option_description.h"
#include "result/option_data.h"
#include "result/sequence.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// Makes room as push_back would, so that adding `count` elements cannot fail.
template <typename Element>
void makeRoom(std::vector<Element>& elements, std::size_t count) {
    const std::size_t needed = elements.size() + count;
    if (needed > elements.capacity()) {
        elements.reserve(std::max(needed, 2 * elements.capacity()));
    }
}

// Whether the elements from `first` on follow the one before them, and each other, in the order of
// their numbers.
template <typename Element>
bool isAscendingFrom(const std::vector<Element>& elements, std::size_t first) {
    const std::size_t begin = first > 0 ? first - 1 : 0;
    return std::is_sorted(
        elements.begin() + static_cast<std::ptrdiff_t>(begin),
        elements.end(),
        [](const Element& a, const Element& b) { return numberOf(a) < numberOf(b); });
}

}  // namespace

void ParseResult::destroy() { delete this; }

ParseResult::FromFile::FromFile(ParseResult& result)
    : result_(result), index_(result.fileNumbers_.size()) {
    const int first = Sequence::next.load(std::memory_order_relaxed);
    if (!result.fileNumbers_.empty() && result.fileNumbers_.back().second == first) {
        --index_;  // files that are read one behind the other are one range
        result.fileNumbers_.back().second = lastPosition;
    } else {
        result.fileNumbers_.emplace_back(first, lastPosition);
    }
}

// By index: a handler may read further files into the same result meanwhile.
ParseResult::FromFile::~FromFile() {
    result_.fileNumbers_[index_].second = Sequence::next.load(std::memory_order_relaxed);
}

bool ParseResult::isFromFile(int position) const {
    return std::any_of(fileNumbers_.begin(), fileNumbers_.end(), [position](const auto& numbers) {
        return numbers.first <= position && position < numbers.second;
    });
}

int ParseResult::store(const OptionDescription& option, const OptionData& data) {
    // The primary name decides for all of them whether this is the first occurrence.
    const std::size_t primary = findStored(option.names.at(0));
    if (primary == none) {
        for (const std::string& name : option.names) {
            replace(name, data);
        }
        return 0;
    }
    append(options[primary], data);
    for (std::size_t i = 1; i < option.names.size(); ++i) {
        append(findOrAdd(option.names[i]), data);
    }
    return 0;
}

void ParseResult::applyDefault(const OptionList& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        const OptionDescription& item = items[i];
        // A switch has no value that could be its default.
        if (item.type == vtNull || !item.hasDefault) {
            continue;
        }
        const char* const text = keptDefault(item);
        for (const std::string& name : item.names) {
            // Each name has a number of its own. It is drawn first: when there is none left, no
            // entry is made.
            const int position = Sequence::draw();
            StoredOption& entry = findOrAdd(name);
            entry.defaultText = text;
            entry.defaultVariant = item.defaultVal;
            entry.defaultPosition = position;
        }
    }
}

// The text of the default, which a parse into the same result before may have kept.
const char* ParseResult::keptDefault(const OptionDescription& item) {
    const std::string text = item.getDefaultValueAsText();
    const StoredOption* const entry = find(item.primaryName());
    return entry != nullptr && text == entry->defaultText ? entry->defaultText : texts_.keep(text);
}

void ParseResult::storeArgument(std::string_view argument) {
    const char* const kept = texts_.keep(argument);
    Sequence::draw();  // the number is part of the order, though no query shows it
    arguments.push_back(kept);
}

// The same option often comes several times in a row, and then needs no second look into the table.
std::size_t ParseResult::findStored(std::string_view name) {
    if (lastStored_ >= options.size() || options[lastStored_].name != name) {
        lastStored_ = findIndex(name);
    }
    return lastStored_;
}

const StoredOption* ParseResult::find(std::string_view name) const {
    const std::size_t found = findIndex(name);
    return found == none ? nullptr : &options[found];
}

std::size_t ParseResult::findIndex(std::string_view name) const {
    const std::uint32_t number = names_.find(name);
    return number < options.size() ? number : none;
}

StoredOption& ParseResult::findOrAdd(std::string_view name) {
    // Room first, so that there is no name without its entry.
    makeRoom(options, 1);
    const std::uint32_t number = names_.keep(name);
    if (number == options.size()) {
        options.emplace_back().name = names_[number];
    }
    return options[number];
}

// Adds all of `data`, or nothing.
void ParseResult::append(StoredOption& entry, const OptionData& data) {
    const std::size_t valuesBefore = entry.values.size();
    const std::size_t positionsBefore = entry.positions.size();
    try {
        for (const OptionValue& value : data.values) {
            entry.values.emplace_back(value.value, textOf(value), value.position);
        }
        entry.positions.insert(entry.positions.end(), data.positions.begin(), data.positions.end());
    } catch (...) {
        entry.values.erase(entry.values.begin() + static_cast<std::ptrdiff_t>(valuesBefore),
                           entry.values.end());
        throw;
    }
    entry.isAscending = entry.isAscending && isAscendingFrom(entry.positions, positionsBefore) &&
                        isAscendingFrom(entry.values, valuesBefore);
}

// The first occurrence of an option makes its entries anew, whatever another item with the same
// synonym, or a default, left there.
void ParseResult::replace(std::string_view name, const OptionData& data) {
    StoredOption fresh;
    // Complete before the old entry is touched: what cannot be stored changes nothing.
    append(fresh, data);
    StoredOption& entry = findOrAdd(name);
    makeRoom(replaced_, entry.values.size());
    std::move(entry.values.begin(), entry.values.end(), std::back_inserter(replaced_));
    fresh.name = entry.name;
    entry = std::move(fresh);
}

// A value that holds the text itself lends it: most texts are then kept once.
const char* ParseResult::textOf(const OptionValue& value) {
    const char* const held = plinth2::get_variant_value(value.value, nullptr);
    return held != nullptr ? held : texts_.keep(value.text);
}

}  // namespace zarn_3_3
