// Values of every type read from texts and written, as the standard streams read and write them.

#include <iomanip>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "bytes.h"
#include "check.h"
#include "options/number_text.h"
#include "options/option_description.h"
#include "support/grouping_locale.h"

namespace fuzzing {
namespace {

using namespace zarn_3_3;

enum class Rest { mustBeBlank, isIgnored };

template <typename Number>
std::optional<Number> extracted(const std::string& text, Rest rest, bool isHexadecimal = false) {
    std::istringstream stream(text);
    Number number{};
    stream >> (isHexadecimal ? std::hex : std::dec) >> number;
    char more = 0;
    const bool isNumber =
        !stream.fail() && (rest == Rest::isIgnored || !static_cast<bool>(stream >> more));
    return isNumber ? std::optional<Number>(number) : std::nullopt;
}

// To the bit: 0 and -0 differ.
template <typename Number>
std::string bitsOf(const std::optional<Number>& number) {
    return number ? std::string(reinterpret_cast<const char*>(&*number), sizeof(Number)) : "none";
}

template <typename Number>
void compareReading(das_variant_type_t type,
                    const std::string& text,
                    const std::optional<Number>& expected) {
    OptionDescription item;
    item.type = type;
    require(!item.getTypeName().empty(), "a declared type has a name");
    const std::vector<char> exact(text.begin(), text.end());  // no byte to spare behind it
    const variant_t value = item.fromString({exact.data(), exact.size()});
    require(value.type() == (expected ? type : vtNull), "the kind of the value");
    const auto found =
        expected ? std::optional<Number>(value.get<Number>()) : std::optional<Number>();
    requireEqual(bitsOf(found), bitsOf(expected), "the value");
}

bool looksHexadecimal(const std::string& text) {
    const std::string digits = "0123456789abcdefABCDEF";
    const bool hasPrefix = text.size() > 1 && text[0] == '0' && (text[1] | 0x20) == 'x' &&
                           text.find_first_not_of(digits, 2) == std::string::npos;
    const bool hasSuffix =
        (text.back() | 0x20) == 'h' && text.find_first_not_of(digits) >= text.size() - 1;
    return hasPrefix || hasSuffix;
}

void compareUnsigned64(const std::string& text) {
    try {
        compareReading(vtU64,
                       text,
                       text.empty() ? std::nullopt
                                    : extracted<unsigned long long>(
                                          text, Rest::isIgnored, looksHexadecimal(text)));
        require(!text.empty(), "an empty text has no last character");
    } catch (const std::out_of_range&) {
        require(text.empty(), "only an empty text has no last character");
    }
    requireEqual(bitsOf(internal::hexadecimalFromText(text)),
                 bitsOf(extracted<unsigned long long>(text, Rest::isIgnored, true)),
                 "a hexadecimal number");
}

void compareText(const std::string& text) {
    OptionDescription item;
    item.type = vtString;
    const variant_t value = item.fromString(text);
    require(value.type() == vtString && item.getTypeName() == "string", "the kind of a text");
    requireEqual(value.get<std::string>(), text, "a text");
    requireEqual(item.toString(value), text, "a text that is written");
}

// Kinds that no value on a command line can have.
void checkUndeclared(das_variant_type_t type, const std::string& text) {
    OptionDescription item;
    item.type = type;
    require(item.fromString(text).type() == vtNull, "no value of such a type");
    require(item.toString(variant_t(text)).empty() && item.getTypeName().empty(), "nor a text");
}

template <typename Number>
void compareWriting(das_variant_type_t type, Number number) {
    OptionDescription item;
    item.type = type;
    std::ostringstream stream;
    stream << number;
    requireEqual(item.toString(variant_t(number)), stream.str(), "a number that is written");
}

}  // namespace
}  // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace fuzzing;
    Bytes bytes(data, size);
    std::optional<GroupingLocale> locale;
    if (bytes.flag()) {
        locale.emplace();
    }
    Bytes bits = bytes;
    const std::string text = bytes.text();
    compareReading(vtBool, text, extracted<bool>(text, Rest::mustBeBlank));
    compareReading(vtS32, text, extracted<int>(text, Rest::mustBeBlank));
    compareReading(vtU32, text, extracted<unsigned>(text, Rest::mustBeBlank));
    compareReading(vtS64, text, extracted<long long>(text, Rest::mustBeBlank));
    compareReading(vtDouble, text, extracted<double>(text, Rest::mustBeBlank));
    compareUnsigned64(text);
    compareText(text);
    checkUndeclared(vtBlob, text);
    checkUndeclared(vtNull, text);
    compareWriting(vtBool, bits.flag());
    compareWriting(vtS32, Bytes(bits).number<int>());
    compareWriting(vtU32, Bytes(bits).number<unsigned>());
    compareWriting(vtS64, Bytes(bits).number<long long>());
    compareWriting(vtU64, Bytes(bits).number<unsigned long long>());
    compareWriting(vtDouble, Bytes(bits).number<double>());
    return 0;
}
