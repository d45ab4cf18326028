// Mistakes in the values of an item: its default, and those that it allows.

#include <algorithm>
#include <string>

#include "options/registered_option_storage.h"
#include "vocabulary/checks.h"
#include "vocabulary/messages.h"

namespace zarn_3_3::internal {
namespace {

bool isText(const variant_t& value) {
    return value.type() == vtString || value.type() == vtStringRef;
}

// As what it is, which need not be what its item takes.
std::string textOf(const variant_t& value) {
    OptionDescription taking;
    taking.type = isText(value) ? vtString : value.type();
    return taking.toString(value);
}

// Whether a user who types its text gives this value. A real number has more digits than its text.
bool isReadBack(const OptionDescription& item, const variant_t& value) {
    if (item.type == vtDouble) {
        return !isText(value) && value.type() != vtNull;
    }
    return isText(value) == (item.type == vtString) &&
           item.fromString(textOf(value), TextLocale::classic) == value;
}

bool isUsable(const OptionDescription& item, const variant_t& value) {
    const std::string text = textOf(value);
    const bool isCut = item.tokenizer != 0 && text.find(item.tokenizer) != std::string::npos;
    return !text.empty() && !isCut && isReadBack(item, value);
}

bool isAccepted(const OptionDescription& item, const variant_t& value) {
    const auto& allowed = item.allowedValues;
    return allowed.empty() || std::find(allowed.begin(), allowed.end(), value) != allowed.end() ||
           item.deprecatedValues.count(value) != 0;
}

void checkDefault(const OptionDescription& item, Findings& findings) {
    const std::string& name = item.primaryName();
    const variant_t& value = item.defaultVal;
    if (item.type == vtNull) {
        findings.error("default-on-switch", name, messages::defaultOnSwitch);
    } else if (value.type() == vtNull || textOf(value).empty()) {
        findings.error("default-empty", name, messages::defaultEmpty);
    } else if (!isReadBack(item, value)) {
        findings.error("default-type", name, messages::defaultType(item.getTypeName()));
    } else if (!isAccepted(item, value)) {
        findings.error("default-not-allowed", name, messages::defaultNotAllowed(textOf(value)));
    }
}

void checkAllowed(const OptionDescription& item, const variant_t& value, Findings& findings) {
    if (!isUsable(item, value)) {
        findings.error(
            "value-unusable", item.primaryName(), messages::valueUnusable(textOf(value)));
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
