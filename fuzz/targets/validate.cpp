// Values checked against the type, the allowed and the deprecated values of an item.

#include <string>
#include <string_view>
#include <vector>

#include "bytes.h"
#include "check.h"
#include "options/option_description.h"
#include "quiet_console.h"
#include "support/assertion_double.h"
#include "vocabulary.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

struct Answer {
    bool isValid;
    std::string text;
    variant_t converted;
    std::string error;
    std::string warnings;
};

Answer validate(const OptionDescription& item, const std::string& text) {
    const QuietConsole console;
    const std::vector<char> exact(text.begin(), text.end());  // no byte to spare behind it
    std::string_view checked(exact.data(), exact.size());
    Answer answer{false, {}, {}, "untouched", {}};
    answer.isValid = item.validate(checked, answer.converted, answer.error);
    answer.text = checked;
    answer.warnings = console.warnings();
    return answer;
}

std::vector<variant_t> acceptedBy(const OptionDescription& item) {
    std::vector<variant_t> accepted = item.allowedValues;
    for (const auto& [deprecated, replacement] : item.deprecatedValues) {
        accepted.push_back(deprecated);
    }
    return accepted;
}

// How many of the accepted values the text stands for.
int matches(const OptionDescription& item, const std::string& text, const variant_t& converted) {
    int abbreviated = 0;
    for (const variant_t& value : acceptedBy(item)) {
        if (value == converted) {
            return 1;
        }
        const std::string full = plinth2::get_variant_value(value, "");
        abbreviated += item.type == vtString && full.substr(0, text.size()) == text ? 1 : 0;
    }
    return abbreviated;
}

void checkRefused(const OptionDescription& item, const std::string& text, const Answer& answer) {
    const variant_t converted = item.fromString(text);
    requireEqual(answer.text, text, "a refused text stays");
    requireEqual(answer.warnings, "", "no warning about a refused value");
    require(answer.error.find("'" + item.primaryName() + "'") != std::string::npos,
            "the error names the option");
    if (converted.type() == vtNull) {
        require(answer.error.find(" can not parse '" + text + "'") != std::string::npos,
                "the error quotes what is no value of the type");
        return;
    }
    require(!item.allowedValues.empty() && matches(item, text, converted) != 1,
            "refused only when it stands for none or several");
    OptionDescription lenient = item;
    lenient.allowValue(converted);
    require(validate(lenient, text).isValid, "accepted once it is allowed");
}

// The order of mixed kinds, and of what is not even equal to itself, is none that a search could
// rely on: warnings about them are not foretold.
void checkWarning(const OptionDescription& item, const Answer& answer) {
    bool isExpected = false;
    for (const auto& [deprecated, replacement] : item.deprecatedValues) {
        const bool isNan = !(deprecated == deprecated);
        if (deprecated.type() != item.type || isNan) {
            return;
        }
        isExpected = isExpected || deprecated == answer.converted;
    }
    isExpected = isExpected && !item.allowedValues.empty();
    require(answer.warnings.empty() != isExpected, "a warning about deprecated values alone");
    require(!isExpected || answer.warnings.back() == '\n', "a warning is a whole line");
}

void checkAccepted(const OptionDescription& item, const std::string& text, const Answer& answer) {
    requireEqual(answer.error, "untouched", "no error");
    require(answer.converted.type() == item.type, "the value has the declared type");
    require(answer.text.substr(0, text.size()) == text, "a text is completed, not changed");
    require(item.allowedValues.empty() || matches(item, text, item.fromString(text)) == 1,
            "stands for one accepted value");
    require(!item.allowedValues.empty() || answer.text == text, "nothing to complete it by");
    const Answer again = validate(item, answer.text);
    require(again.isValid && again.text == answer.text && again.converted == answer.converted,
            "what was accepted is accepted again");
    checkWarning(item, answer);
}

OptionDescription itemFrom(Bytes& bytes) {
    OptionDescription item;
    item.type = typeFrom(bytes);
    appendNames(nameListFrom(bytes), item.names);
    for (unsigned left = bytes.below(8); left > 0; --left) {
        const bool isDeprecated = bytes.below(3) == 2;
        const bool isOwnKind = bytes.flag();
        const variant_t made = valueFrom(bytes, item.type);
        const variant_t value = isOwnKind ? item.fromString(item.toString(made) + "0") : made;
        if (isDeprecated) {
            item.allowDeprecatedValue(value, valueFrom(bytes, vtString));
        } else {
            item.allowValue(value);
        }
    }
    return item;
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    const OptionDescription item = itemFrom(bytes);
    const std::string text = bytes.text();
    if (text.empty() && item.type == vtU64) {
        return 0;  // out of contract: there is no last character to tell its base by
    }
    const Answer answer = validate(item, text);
    if (answer.isValid) {
        checkAccepted(item, text, answer);
    } else {
        checkRefused(item, text, answer);
    }
    takeAssertions();
    return 0;
}
