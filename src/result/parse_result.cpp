// How a result is filled. How entries begin: entry_beginnings.cpp. How it is read:
// result_queries.cpp.

#include "result/parse_result.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "options/option_description.h"
#include "result/option_data.h"
#include "result/sequence.h"
#include "text/make_room.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

// Kept: the names once stood in a vector, and tools have seen what that says.
constexpr const char* noFirstName =
    "vector::_M_range_check: __n (which is 0) >= this->size() (which is 0)";

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

int ParseResult::store(const OptionDescription& option, OptionData& data) {
    // The primary name decides for all of them whether this is the first occurrence.
    if (option.names.empty()) {
        throw std::out_of_range(noFirstName);
    }
    const std::size_t primary = findStored(option.names.front());
    // Kept once, for the entries of all names; texts that values hold live as long as those.
    for (OptionValue& value : data.values) {
        if (heldText(value.value) == nullptr) {
            value.text = {texts_.keep(value.text), value.text.size()};
        }
    }
    for (std::size_t i = 0; i < option.names.size(); ++i) {
        const bool isLast = i + 1 == option.names.size();
        if (primary == none) {
            replace(option.names[i], data, isLast);
            continue;
        }
        StoredOption& entry = i == 0 ? options[primary] : findOrAdd(option.names[i]);
        entry.store(data, isLast);
    }
    return 0;
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
    makeRoom(options, options.size() + 1, 8);
    const std::uint32_t number = names_.keep(name);
    if (number == options.size()) {
        options.emplace_back().name = names_[number];
    }
    return options[number];
}

}  // namespace zarn_3_3
