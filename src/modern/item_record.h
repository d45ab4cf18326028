// One item of the modern face.

#ifndef ZARN_MODERN_ITEM_RECORD_H
#define ZARN_MODERN_ITEM_RECORD_H

#include <memory>
#include <string>
#include <string_view>

#include "options/option_description.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

// What is known of an item beside its plain declaration.
struct ItemRecord final : ItemDescription {
    ItemRecord() = default;
    ItemRecord(const ItemRecord&) = delete;
    ItemRecord& operator=(const ItemRecord&) = delete;
    ~ItemRecord();

    const Extras& extras() const { return *extras_; }
    bool hasExtras() const { return ownExtras_ != nullptr; }
    Extras& changeableExtras();

    // Whether its values have to be parsed anew when they were stored for a group of positional
    // items, as texts.
    bool needsOwnParse() const;
    bool takesValue() const { return type != vtNull && type != vtBool; }
    bool needsValue() const { return takesValue() && extras().impliedValue.type() == vtNull; }
    bool hasOptionalValue() const { return takesValue() && !needsValue(); }
    bool takesMany() const { return target == nullptr || target->takesMany; }
    bool isModifier() const { return plain->isModifier(); }
    const std::string& primaryName() const { return plain->primaryName(); }

    // All names, as they were given.
    std::string allNames() const;

    // How messages call it: as users type it.
    std::string called() const;

    // Chains its settings. Throws std::bad_alloc when the plain item has not taken all of them.
    void configure(IOption& item) const;

    // Whether its values are numbers, of which some may not be typed.
    bool isBounded() const { return !isPlain && takesValue() && type != vtString; }

    // What its numbers must lie between: "it must be between 1 and 64".
    std::string boundsText() const;

    // Whether any value of its type may be refused.
    bool isChecked() const;

    // Whether the value lies within the bounds and meets all checks; why not, in `reason`. With
    // `isLasting`, only those whose answer is the same everywhere are asked.
    bool holds(const Value& value, bool isLasting, std::string& reason) const;

    // A deprecated value as what it is read as.
    Value replaced(const Value& value) const;

    Check* checks = nullptr;                   // owned, and those behind it
    const OptionDescription* plain = nullptr;  // as it was declared
    bool isAnswered = false;                   // without the tool, as help is
    bool isPlain = false;                      // declared with the plain interface

private:
    void configureValues(IOption& item) const;

    // One for all: most items have nothing of them, and many tools have hundreds of items.
    static const Extras& noExtras();

    std::unique_ptr<Extras> ownExtras_;   // null: nothing of them was said
    const Extras* extras_ = &noExtras();  // those, or none
};

// Puts the check at the end of those.
void append(Check*& checks, Check* check) noexcept;
void release(Check* checks) noexcept;

// Throws std::logic_error when the author has made a mistake in them.
void requireSettings(const ItemRecord& item);

// Why the item would refuse the setting, which has its type; empty when it would not.
std::string whyRefused(const ItemRecord& item, const variant_t& setting);

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_ITEM_RECORD_H
