// How a value is checked against the type and the allowed values of its item.

#include <algorithm>
#include <exception>
#include <ostream>
#include <string>
#include <string_view>

#include "options/messages.h"
#include "options/option_description.h"
#include "platform/console.h"

namespace zarn_3_3 {
namespace {

using namespace internal;

// Calls visit(value) for everything that the item accepts: the allowed values as declared, then the
// deprecated ones in their order. Stops, and answers true, when a visit does.
template <typename Visit>
bool visitAccepted(const OptionDescription& option, Visit visit) {
    return std::any_of(option.allowedValues.begin(), option.allowedValues.end(), visit) ||
           std::any_of(option.deprecatedValues.begin(),
                       option.deprecatedValues.end(),
                       [&visit](const auto& deprecated) { return visit(deprecated.first); });
}

// Only the allowed values: nobody is pointed to a deprecated one.
[[gnu::cold]] std::string allowedValueList(const OptionDescription& option) {
    std::string list;
    for (const variant_t& allowed : option.allowedValues) {
        list += list.empty() ? "'" : ", '";
        list += option.toString(allowed) + "'";
    }
    return list;
}

struct Abbreviated {
    int matches = 0;
    std::string match;  // the last one
};

Abbreviated findAbbreviated(const OptionDescription& option, std::string_view text) {
    Abbreviated found;
    // A deprecated value may be abbreviated too, and makes others ambiguous.
    visitAccepted(option, [&](const variant_t& candidate) {
        const std::string full = plinth2::get_variant_value(candidate, "");
        if (full.compare(0, text.size(), text) == 0) {
            ++found.matches;
            found.match = full;
        }
        return false;
    });
    return found;
}

// A warning that cannot be written never changes a parse, whatever exceptions a client asked the
// stream for. The line is one piece, so that it stays whole.
void warn(const std::string& line) {
    try {
        TROV_2_18::strings::pl2::ucerr << line << std::flush;
    } catch (const std::exception&) {
    }
}

[[gnu::cold]] void warnOfDeprecated(const OptionDescription& option,
                                    std::string_view text,
                                    const variant_t& replacement) {
    const char* const replacing = plinth2::get_variant_value(replacement, "");
    warn(messages::valueIsDeprecated(option.primaryName(), text, replacing) + "\n");
}

void warnIfDeprecated(const OptionDescription& option,
                      std::string_view text,
                      const variant_t& value) {
    const auto deprecated = option.deprecatedValues.find(value);
    if (deprecated != option.deprecatedValues.end()) {
        warnOfDeprecated(option, text, deprecated->second);
    }
}

}  // namespace

DiagnosticKind OptionDescription::validate(std::string_view& text,
                                           variant_t& converted,
                                           std::string& error,
                                           TextLocale locale,
                                           plinth2::SharedTexts& texts) const {
    fromString(text, converted, locale, texts);
    if (converted.type() == vtNull) {
        error = messages::notOfItsType(primaryName(), text, getTypeName());
        return valueOfOtherType;
    }
    // Deprecated values without allowed ones have no say: everything is accepted already.
    if (allowedValues.empty()) {
        return noFailure;
    }
    // Values are compared, not texts: 0x10 is 16, and 1.0 is 1. What is equal to one of them is
    // never taken for the beginning of another.
    if (visitAccepted(*this, [&](const variant_t& value) { return value == converted; })) {
        warnIfDeprecated(*this, text, converted);
        return noFailure;
    }
    // Texts alone can be abbreviated; of a number, the beginning is another number.
    const Abbreviated found = type == vtString ? findAbbreviated(*this, text) : Abbreviated{};
    if (found.matches == 0) {
        error = messages::valueNotAllowed(primaryName(), text, allowedValueList(*this));
        return valueNotAllowed;
    }
    if (found.matches > 1) {
        error = messages::ambiguousValue(primaryName(), allowedValueList(*this));
        return ambiguousValue;
    }
    // From here on the full value counts, for handlers and results; the log and a veto name what
    // was typed.
    converted = variant_t(found.match);
    warnIfDeprecated(*this, found.match, converted);
    text = converted.get<const char*>();
    return noFailure;
}

}  // namespace zarn_3_3
