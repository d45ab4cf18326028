// Everything that a result holds under one name.

#ifndef ZARN_RESULT_STORED_OPTION_H
#define ZARN_RESULT_STORED_OPTION_H

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "interface/owned_text.h"
#include "result/option_data.h"
#include "text/make_room.h"
#include "zarn/value.h"

namespace zarn_3_3 {

namespace internal {

// A result holds one of these for every value, so the position stands in the bytes that a variant_t
// leaves free at its end.
struct PlacedValue {
    PlacedValue(variant_t&& converted, int number)
        : value(std::move(converted)), position(number) {}

    [[no_unique_address]] variant_t value;
    int position;
};

static_assert(sizeof(PlacedValue) == sizeof(variant_t));

using plinth2::heldText;

// What nearly every value would repeat is not stored: its text, when it holds that itself, and the
// number of its occurrence, when it is the only one and numbered next.
class StoredOption {
public:
    std::string_view name;  // kept by the result
    const char* defaultText = "";
    variant_t defaultVariant;
    int defaultPosition = 0;

    std::size_t occurrences() const { return occurrences_; }
    int occurrence(std::size_t index) const {
        return isPaired() ? positionOf(index) - 1 : positions_[index];
    }

    // How many values there are; a switch has none.
    std::size_t size() const { return values_.size(); }
    int positionOf(std::size_t index) const { return values_[index].position; }
    const char* textOf(std::size_t index) const {
        const char* const apart = texts_.empty() ? nullptr : texts_[index];
        return apart != nullptr ? apart : heldText(values_[index].value);
    }
    Value operator[](std::size_t index) const {
        return {textOf(index), values_[index].value, positionOf(index)};
    }

    // Whether occurrences and values are in the order of their numbers. They nearly always are; but
    // a handler that parses into the same result inside an event stores what comes later first, and
    // an item with the same name twice stores the values of each occurrence twice.
    bool isAscending() const { return isAscending_; }

    // Not given, but with a default. One whose text is empty does not count.
    bool isDefaultOnly() const { return occurrences() == 0 && *defaultText != '\0'; }

    // Adds an occurrence. Texts that its values do not hold are kept by the result. Its values may
    // be given away: they are empty then. Throws std::bad_alloc and adds nothing then.
    void store(OptionData& data, bool isGivenAway) {
        // Of texts, which are what comes in large numbers, this is all.
        if (texts_.empty() && staysPaired(data) && heldText(data.values[0].value) != nullptr) {
            makeRoom(values_, values_.size() + 1, 4);
            addValue(data.values[0], isGivenAway);
            ++occurrences_;
        } else {
            storeAny(data, isGivenAway);
        }
    }

    std::vector<PlacedValue> takeValues() { return std::move(values_); }

private:
    bool isPaired() const { return positions_.empty(); }
    bool staysPaired(const OptionData& data) const {
        return isPaired() && data.values.size() == 1 &&
               data.values[0].position == data.position + 1;
    }
    void storeAny(OptionData& data, bool isGivenAway);
    void makeRoomFor(const OptionData& data);
    void addPosition(int position) noexcept;
    void addText(const OptionValue& value) noexcept;
    void addValue(OptionValue& value, bool isGivenAway) noexcept {
        isAscending_ =
            isAscending_ && (values_.empty() || values_.back().position <= value.position);
        values_.emplace_back(isGivenAway ? std::move(value.value) : variant_t(value.value),
                             value.position);
    }

    std::vector<PlacedValue> values_;
    std::vector<const char*> texts_;  // as many, or none: null where the value holds it
    std::vector<int> positions_;      // of occurrences, unless each has one value behind it
    std::size_t occurrences_ = 0;
    bool isAscending_ = true;
};

}  // namespace internal
}  // namespace zarn_3_3

#endif  // ZARN_RESULT_STORED_OPTION_H
