// Mistakes in the values of an item: its default, and those that it allows.

#include <algorithm>
#include <cmath>
#include <string>

#include "options/registered_option_storage.h"
#include "vocabulary/checks.h"
#include "vocabulary/messages.h"
#include "vocabulary/value_words.h"

namespace zarn_3_3::internal {
namespace {

bool isText(const variant_t& value) {
    return value.type() == vtString || value.type() == vtStringRef;
}

bool isNegative(const variant_t& value) {
    const bool isSigned = value.type() % 2 == 0;  // see das_variant_type_t
    return isSigned && value.get<long long>() < 0;
}

// Whether a whole number stays what it is when it is read as a T.
template <typename T>
bool isKeptAs(const variant_t& value) {
    // Compared with a signed number, the largest unsigned one counts as -1: signs tell them apart.
    const variant_t read(value.get<T>());
    return read == value && isNegative(read) == isNegative(value);
}

// Whether a value can be read as the type of its item without becoming another one.
bool isOfType(das_variant_type_t type, const variant_t& value) {
    // Codes above that of the double are those of texts, and of what is no value.
    if (type == vtString || value.type() > vtDouble) {
        return type == vtString && isText(value);
    }
    // A double reads every number, but nothing else reads a double, whole as it may be.
    if (type == vtDouble || value.type() == vtDouble) {
        return type == vtDouble;
    }
    switch (type) {
        case vtBool:
            return isKeptAs<bool>(value);
        case vtS32:
            return isKeptAs<int>(value);
        case vtU32:
            return isKeptAs<unsigned>(value);
        case vtS64:
            return isKeptAs<long long>(value);
        default:  // unsigned 64 bits
            return isKeptAs<unsigned long long>(value);
    }
}

// No text is read as infinite.
bool isInfinite(const variant_t& value) {
    return value.type() == vtDouble && !std::isfinite(value.get<double>());
}

bool isUsable(const OptionDescription& item, const variant_t& value) {
    const std::string text = typedText(value);
    const bool isCut = item.tokenizer != 0 && text.find(item.tokenizer) != std::string::npos;
    return !text.empty() && !isCut && isOfType(item.type, value) && !isInfinite(value);
}

bool isEmpty(const variant_t& value) {
    return value.type() == vtNull || (isText(value) && typedText(value).empty());
}

bool isAccepted(const OptionDescription& item, const variant_t& value) {
    const auto& allowed = item.allowedValues;
    return allowed.empty() || std::find(allowed.begin(), allowed.end(), value) != allowed.end() ||
           item.deprecatedValues.count(value) != 0;
}

void checkDefault(const OptionDescription& item, Findings& findings) {
    const std::string& name = item.primaryName();
    const variant_t& value = item.defaultVal;
    // One finding for a default: a value of another type is not among the allowed ones either.
    if (item.type == vtNull) {
        findings.error("default-on-switch", name, messages::defaultOnSwitch);
    } else if (isEmpty(value)) {
        findings.error("default-empty", name, messages::defaultEmpty);
    } else if (!isOfType(item.type, value)) {
        findings.error("default-type", name, messages::defaultType(typeWord(item.type)));
    } else if (!isAccepted(item, value)) {
        findings.error("default-not-allowed", name, messages::defaultNotAllowed(typedText(value)));
    }
}

void checkAllowed(const OptionDescription& item, const variant_t& value, Findings& findings) {
    if (!isUsable(item, value)) {
        findings.error(
            "value-unusable", item.primaryName(), messages::valueUnusable(typedText(value)));
    }
}

}  // namespace

void checkValues(const OptionDescription& item, Findings& findings) {
    if (item.hasDefault) {
        checkDefault(item, findings);
    }
    const bool hasAllowed = !item.allowedValues.empty();
    const bool hasDeprecated = !item.deprecatedValues.empty();
    if (item.type == vtNull && (hasAllowed || hasDeprecated)) {
        findings.error("values-on-switch", item.primaryName(), messages::valuesOnSwitch);
        return;
    }
    for (const variant_t& value : item.allowedValues) {
        checkAllowed(item, value, findings);
    }
    for (const auto& deprecated : item.deprecatedValues) {
        checkAllowed(item, deprecated.first, findings);
    }
    if (hasDeprecated && !hasAllowed) {
        findings.error("deprecated-alone", item.primaryName(), messages::deprecatedAlone);
    }
}

}  // namespace zarn_3_3::internal
