#include "result/stored_option.h"

namespace zarn_3_3::internal {

void StoredOption::storeAny(OptionData& data, bool isGivenAway) {
    makeRoomFor(data);
    if (!staysPaired(data)) {
        addPosition(data.position);
    }
    for (OptionValue& value : data.values) {
        addText(value);
        addValue(value, isGivenAway);
    }
    ++occurrences_;
}

// Behind it nothing can fail.
void StoredOption::makeRoomFor(const OptionData& data) {
    const std::size_t size = values_.size() + data.values.size();
    makeRoom(values_, size);
    makeRoom(texts_, size);
    if (!staysPaired(data)) {
        makeRoom(positions_, occurrences_ + 1);
    }
}

void StoredOption::addPosition(int position) noexcept {
    isAscending_ = isAscending_ && (occurrences_ == 0 || occurrence(occurrences_ - 1) <= position);
    // Those before were told by their values until now.
    for (std::size_t i = positions_.size(); i < occurrences_; ++i) {
        const int ofValue = positionOf(i) - 1;
        positions_.push_back(ofValue);
    }
    positions_.push_back(position);
}

void StoredOption::addText(const OptionValue& value) noexcept {
    // The list begins with the first text that needs a place there; those before get an empty one.
    const bool isHeld = heldText(value.value) != nullptr;
    if (!isHeld || !texts_.empty()) {
        texts_.resize(values_.size());
        texts_.push_back(isHeld ? nullptr : value.text.data());
    }
}

}  // namespace zarn_3_3::internal
