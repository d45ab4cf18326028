#include "modern/once.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "modern/messages.h"
#include "text/heap_sort.h"

namespace zarn_3_3::internal {
namespace {

// What takes one value: a variable, or an item that has none.
struct Slot {
    const void* key;
    const ItemRecord* reader;  // the option whose values go there, where switches store constants
};

const void* keyOf(const ItemRecord& item) {
    return item.variable != nullptr ? item.variable : &item;
}

bool isBefore(const Slot& a, const Slot& b) { return std::less<>()(a.key, b.key); }

// Null for an item that may be given with different values.
Slot* slotOf(const ItemRecord& item, std::vector<Slot>& slots) {
    const Slot wanted{keyOf(item), nullptr};
    const auto found = std::lower_bound(slots.begin(), slots.end(), wanted, &isBefore);
    return found != slots.end() && found->key == wanted.key ? &*found : nullptr;
}

std::vector<Slot> allSlots(const Vocabulary& vocabulary) {
    std::vector<Slot> slots;
    for (const auto& item : vocabulary.items()) {
        if (item->isOnce) {
            slots.push_back({keyOf(*item), nullptr});
        }
    }
    heapSort(slots, &isBefore);
    return slots;
}

struct GivenValue {
    const Slot* slot;
    Origin origin;
    const ItemRecord* item;
    Value value;
};

// What counts most first, and of that the first that was given.
bool isInFront(const GivenValue& a, const GivenValue& b) {
    return std::tuple(a.slot, b.origin, a.value.position) <
           std::tuple(b.slot, a.origin, b.value.position);
}

// Adds the values of the item from where the one that counts comes.
void addGiven(const ItemRecord& item,
              const Slot& slot,
              StoredOutcome& outcome,
              std::vector<GivenValue>& all) {
    std::vector<Value> values;
    const Origin origin = outcome.find(item, &values).origin;
    if (origin <= Origin::byDefault) {
        return;
    }
    for (const Value& value : values) {
        const bool isFromFile = outcome.result().isFromFile(value.position);
        if (origin != Origin::commandLine || !isFromFile) {
            all.push_back({&slot, origin, &item, value});
        }
    }
}

std::vector<GivenValue> allGiven(StoredOutcome& outcome, std::vector<Slot>& slots) {
    std::vector<GivenValue> all;
    for (const auto& item : outcome.vocabulary().items()) {
        if (Slot* const slot = slotOf(*item, slots)) {
            if (item->target != nullptr && item->extras().constant.value == nullptr) {
                slot->reader = item.get();
            }
            addGiven(*item, *slot, outcome, all);
        }
    }
    heapSort(all, &isInFront);
    return all;
}

// What the variable would hold, as the reader shows it: "64K" for "65536". Empty when it cannot.
variant_t shown(const GivenValue& given) {
    if (given.slot->reader == nullptr) {
        return {};
    }
    const TargetKind& kind = *given.slot->reader->target;
    if (const void* const constant = given.item->extras().constant.value) {
        return kind.current(constant);
    }
    const std::unique_ptr<void, decltype(kind.release)> made(
        kind.make({&given.value, 1, given.value, nullptr}), kind.release);
    return kind.current(made.get());
}

bool isSame(const GivenValue& a, const GivenValue& b) {
    const variant_t one = shown(a);
    const variant_t other = shown(b);
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
    std::vector<Slot> slots = allSlots(outcome.vocabulary());
    const std::vector<GivenValue> all =
        slots.empty() ? std::vector<GivenValue>() : allGiven(outcome, slots);
    const GivenValue* first = nullptr;
    for (const GivenValue& given : all) {
        if (first == nullptr || given.slot != first->slot) {
            first = &given;
        } else if (given.origin == first->origin && !isSame(*first, given)) {
            return told(*first, given, outcome.vocabulary().plain().failure());
        }
    }
    return "";
}

}  // namespace zarn_3_3::internal
