#include "modern/item_record.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>

#include "modern/messages.h"
#include "text/number_text.h"
#include "text/typed_form.h"
#include "zarn/typed/declaration.h"

namespace zarn_3_3::internal {
namespace {

struct Bounds {
    variant_t least;
    variant_t greatest;
};

template <typename T>
Bounds allOf() {
    return {std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()};
}

Bounds boundsOf(das_variant_type_t type) {
    switch (type) {
        case vtS32:
            return allOf<int>();
        case vtU32:
            return allOf<unsigned>();
        case vtS64:
            return allOf<long long>();
        case vtU64:
            return allOf<unsigned long long>();
        default:
            return allOf<double>();
    }
}

bool isGiven(const variant_t& setting) { return setting.type() != vtNull; }

bool hasBounds(const Extras& extras) { return isGiven(extras.least) || isGiven(extras.greatest); }

// Streams read "-1" as the greatest number of a type without sign.
bool isNegated(const ItemRecord& item, const Value& value) {
    return (item.type == vtU32 || item.type == vtU64) && value.text != nullptr &&
           *value.text == '-';
}

// The plain interface does not look at what follows the digits of this type: "4x" is 4 there.
bool isCutShort(const ItemRecord& item, const Value& value) {
    return item.type == vtU64 && value.text != nullptr && *value.text != '\0' &&
           !isHexadecimal(value.text) &&
           !numberFromText<unsigned long long>(value.text, Trailing::refused, globalTextLocale());
}

bool isWithin(const ItemRecord& item, const Value& value) {
    const Extras& extras = item.extras();
    return !isNegated(item, value) && !(isGiven(extras.least) && value.value < extras.least) &&
           !(isGiven(extras.greatest) && extras.greatest < value.value);
}

}  // namespace

const Extras& ItemRecord::noExtras() {
    static const Extras none;
    return none;
}

Extras& ItemRecord::changeableExtras() {
    if (ownExtras_ == nullptr) {
        ownExtras_ = std::make_unique<Extras>();
        extras_ = ownExtras_.get();
    }
    return *ownExtras_;
}

ItemRecord::~ItemRecord() { release(checks); }

// A group stores whole texts. What is a text and is not cut needs nothing more.
bool ItemRecord::needsOwnParse() const {
    return type != vtString || !plain->allowedValues.empty() || separator != '\0';
}

std::string ItemRecord::allNames() const {
    std::string all;
    for (const std::string& name : plain->names) {
        all.append(all.empty() ? "" : ",").append(name);
    }
    return all;
}

std::string ItemRecord::called() const {
    if (role == Role::positional) {
        return *shownName == '\0' ? primaryName() : shownName;
    }
    return typedForm(primaryName());
}

void ItemRecord::configure(IOption& item) const {
    if (role == Role::positional) {
        item.positional();
    }
    if (hasExtras()) {
        configureValues(item);
    }
    item.tokenize(separator);  // last: allowValue has values cut at ','
}

void ItemRecord::configureValues(IOption& item) const {
    // The plain settings take what they can and say nothing: what is lost is found at the end.
    const std::vector<AllowedValue>& allowed = extras().allowed;
    for (const AllowedValue& each : allowed) {
        if (isGiven(each.replacement)) {
            item.allowDeprecatedValue(each.value, each.replacement);
        } else {
            item.allowValue(each.value);
        }
    }
    if (isGiven(extras().defaultValue)) {
        item.defaultValue(extras().defaultValue);
    }
    const auto& made = static_cast<const OptionDescription&>(item);
    const auto isTaken = [&](const AllowedValue& each) {
        return !isGiven(each.replacement) ||
               made.deprecatedValues.find(each.value) != made.deprecatedValues.end();
    };
    const auto deprecated = std::count_if(
        allowed.begin(), allowed.end(), [](const auto& each) { return isGiven(each.replacement); });
    if (made.allowedValues.size() != allowed.size() - static_cast<std::size_t>(deprecated) ||
        !std::all_of(allowed.begin(), allowed.end(), isTaken)) {
        throw std::bad_alloc();
    }
}

std::string ItemRecord::boundsText() const {
    const Bounds all = boundsOf(type);
    return internal::boundsText(isGiven(extras().least) ? extras().least : all.least,
                                isGiven(extras().greatest) ? extras().greatest : all.greatest);
}

bool ItemRecord::isChecked() const {
    // The conversion sees to the bounds of the other types. Unchecked items cost a parse nothing.
    const bool hasNoSign = type == vtU32 || type == vtU64;
    return checks != nullptr || (isBounded() && (hasNoSign || hasBounds(extras())));
}

bool ItemRecord::holds(const Value& value, bool isLasting, std::string& reason) const {
    if (isBounded() && !isWithin(*this, value)) {
        // To say "at most 8" of a "-1" that was read as 4294967295 would confuse: it is told all
        // that the type can be.
        reason = !hasBounds(extras()) || isNegated(*this, value)
                     ? boundsText()
                     : internal::boundsText(extras().least, extras().greatest);
        return false;
    }
    if (isCutShort(*this, value)) {
        reason = messages::noNumber;
        return false;
    }
    for (const Check* check = checks; check != nullptr; check = check->next) {
        if ((check->isLasting() || !isLasting) && !check->holds(value, reason)) {
            return false;
        }
    }
    return true;
}

Value ItemRecord::replaced(const Value& value) const {
    if (plain->deprecatedValues.empty()) {
        return value;
    }
    const auto found = plain->deprecatedValues.find(value.value);
    if (found == plain->deprecatedValues.end()) {
        return value;
    }
    // The text too: who asks for a std::string wants the replacement as well.
    Value read(value);
    read.value = found->second;
    read.text = get_variant_value(read.value, value.text);
    return read;
}

void append(Check*& checks, Check* check) noexcept {
    // At the end, since checks are asked in the order in which they were chained. They are few.
    Check** end = &checks;
    while (*end != nullptr) {
        end = &(*end)->next;
    }
    *end = check;
}

void release(Check* checks) noexcept {
    while (checks != nullptr) {
        Check* const next = checks->next;
        delete checks;
        checks = next;
    }
}

void requireSettings(const ItemRecord& item) {
    const Extras& extras = item.extras();
    if (item.showsTarget && item.takesMany()) {
        mistake(item.names, messages::noVariable);
    }
    if (isGiven(extras.least) && isGiven(extras.greatest) && extras.greatest < extras.least) {
        mistake(item.names, noValueBetween);
    }
    const std::string wrongDefault = whyRefused(item, extras.defaultValue);
    if (!wrongDefault.empty()) {
        mistake(item.names, messages::defaultRefused(wrongDefault));
    }
    // Unlike an empty default it would have to be typed, as "--color=", which is no value.
    if (isGiven(extras.impliedValue) && *get_variant_value(extras.impliedValue, "x") == '\0') {
        mistake(item.names, messages::impliedRefused(messages::emptyText));
    }
    const std::string wrongImplied = whyRefused(item, extras.impliedValue);
    if (!wrongImplied.empty()) {
        mistake(item.names, messages::impliedRefused(wrongImplied));
    }
}

std::string whyRefused(const ItemRecord& item, const variant_t& setting) {
    const char* const text = get_variant_value(setting, "");
    // An empty text as a default is none, and asked nothing.
    if (!isGiven(setting) || (item.type == vtString && *text == '\0')) {
        return "";
    }
    const std::vector<AllowedValue>& allowed = item.extras().allowed;
    const bool isAllowed =
        allowed.empty() ||
        std::any_of(allowed.begin(), allowed.end(), [&](const AllowedValue& each) {
            // Nor may a tool lead its users to a value that it deprecates.
            return !isGiven(each.replacement) && each.value == setting;
        });
    if (!isAllowed) {
        return messages::notAllowed;
    }
    std::string reason;
    // Whether a file exists is no matter of the declaration.
    const bool isHeld = item.holds(Value(text, setting, 0), true, reason);
    return isHeld ? "" : reason;
}

}  // namespace zarn_3_3::internal
