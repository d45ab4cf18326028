#include "modern/once.h"

#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "modern/messages.h"
#include "modern/places.h"
#include "text/heap_sort.h"

namespace zarn_3_3::internal {
namespace {

const void* keyOf(const ItemRecord& item) {
    return item.variable != nullptr ? item.variable : &item;
}

bool storesConstant(const ItemRecord& item) { return item.extras().constant.value != nullptr; }

struct GivenValue {
    const void* key;  // what takes one value: a variable, or an item that has none
    Origin origin;
    const ItemRecord* item;
    Value value;
};

// What counts most first, and of that the first that was given.
bool isInFront(const GivenValue& a, const GivenValue& b) {
    return std::tuple(a.key, b.origin, a.value.position) <
           std::tuple(b.key, a.origin, b.value.position);
}

// Adds the values of the item from where the one that counts comes.
void addGiven(const ItemRecord& item, StoredOutcome& outcome, std::vector<GivenValue>& all) {
    std::vector<Value> values;
    const Origin origin = outcome.find(item, &values).origin;
    if (origin <= Origin::byDefault) {
        return;
    }
    for (const Value& value : values) {
        const bool isFromFile = outcome.result().isFromFile(value.position);
        if (origin != Origin::commandLine || !isFromFile) {
            all.push_back({keyOf(item), origin, &item, value});
        }
    }
}

// Of the items that may be asked for one value, or share the variable of one that is.
std::vector<GivenValue> allGiven(StoredOutcome& outcome) {
    std::vector<GivenValue> all;
    for (const auto& item : outcome.vocabulary().items()) {
        if (item->isOnce || !item->takesMany()) {
            addGiven(*item, outcome, all);
        }
    }
    heapSort(all, &isInFront);
    return all;
}

// What fills one variable.
struct Slot {
    bool isOnce = false;
    const ItemRecord* reader = nullptr;  // the option whose values go there, beside constants
};

Slot slotOf(const GivenValue& given, const Vocabulary& vocabulary) {
    Slot slot;
    for (const auto& item : vocabulary.items()) {
        if (keyOf(*item) == given.key) {
            slot.isOnce = slot.isOnce || item->isOnce;
            slot.reader =
                item->target != nullptr && !storesConstant(*item) ? item.get() : slot.reader;
        }
    }
    return slot;
}

// What the variable would hold, as the reader shows it: "64K" for "65536". Empty when it cannot.
variant_t shown(const GivenValue& given, const ItemRecord* reader) {
    if (reader == nullptr) {
        return {};
    }
    const TargetKind& kind = *reader->target;
    if (storesConstant(*given.item)) {
        return kind.current(given.item->extras().constant.value);
    }
    Places places(Places::unitsOf(kind));
    void* const place = places.take(kind);
    kind.make(place, {&given.value, 1, given.value, nullptr});
    const std::unique_ptr<void, decltype(kind.destroy)> made(place, kind.destroy);
    return kind.current(made.get());
}

bool isSame(const GivenValue& a, const GivenValue& b, const ItemRecord* reader) {
    const variant_t one = shown(a, reader);
    const variant_t other = shown(b, reader);
    return one.type() != vtNull && other.type() != vtNull
               ? one == other
               : a.item == b.item && a.value.value == b.value.value;
}

std::string told(const GivenValue& one, const GivenValue& other, FailureNote& note) {
    const std::string& name = other.item->primaryName();
    if (one.item != other.item) {
        note.make(optionsExclude, {}, {}, one.item->primaryName(), name);
        return messages::exclude(*one.item, *other.item);
    }
    note.make(valuesDiffer, {}, {}, name, other.value.text);
    return messages::differ(*other.item, one.value.text, other.value.text);
}

}  // namespace

std::string differing(StoredOutcome& outcome) {
    const Vocabulary& vocabulary = outcome.vocabulary();
    if (!vocabulary.demands().once) {
        return "";
    }
    const std::vector<GivenValue> all = allGiven(outcome);
    const GivenValue* first = nullptr;
    Slot slot;
    for (const GivenValue& given : all) {
        if (first == nullptr || given.key != first->key) {
            first = &given;
            continue;
        }
        if (&given == first + 1) {  // most variables are given one value
            slot = slotOf(given, vocabulary);
        }
        if (slot.isOnce && given.origin == first->origin && !isSame(*first, given, slot.reader)) {
            return told(*first, given, outcome.vocabulary().plain().failure());
        }
    }
    return "";
}

}  // namespace zarn_3_3::internal
