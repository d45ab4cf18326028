// Values from texts and back, by the declared type of an item.

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "options/option_description.h"
#include "text/number_text.h"

namespace zarn_3_3 {
namespace {

using namespace internal;

// Reads a text as the type that execute is called with.
struct OperationFromString {
    std::string_view text;
    TextLocale locale;
    plinth2::SharedTexts& texts;
    variant_t& result;

    template <typename T>
    void execute() {
        if (const auto number = numberFromText<T>(text, Trailing::refused, locale)) {
            result = *number;
        }
    }
};

// Lenient on purpose: what follows the number is not looked at.
template <>
void OperationFromString::execute<unsigned long long>() {
    const auto number = isHexadecimal(text)
                            ? hexadecimalFromText(text, locale)
                            : numberFromText<unsigned long long>(text, Trailing::ignored, locale);
    if (number) {
        result = *number;
    }
}

template <>
void OperationFromString::execute<const char*>() {
    result = texts.keep(text);
}

// Writes a value read as the type that execute is called with, whatever its own kind.
struct OperationToString {
    const variant_t& value;
    std::string result;

    template <typename T>
    void execute() {
        using Widest = std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>;
        using Written = std::conditional_t<std::is_same_v<T, double>, double, Widest>;
        result = textFromNumber<Written>(value.get<T>());
    }
};

template <>
void OperationToString::execute<bool>() {
    // As a user types it, not as a stream writes it.
    result = value.get<bool>() ? "1" : "0";
}

template <>
void OperationToString::execute<const char*>() {
    result = value.get<const char*>();
}

struct OperatorGetTypeName {
    const char* result = "";

    template <typename T>
    void execute();
};

template <>
void OperatorGetTypeName::execute<bool>() {
    result = "undefined";  // tools show it so
}

template <>
void OperatorGetTypeName::execute<int>() {
    result = "integer";
}

template <>
void OperatorGetTypeName::execute<unsigned>() {
    result = "unsigned integer";
}

template <>
void OperatorGetTypeName::execute<long long>() {
    result = "64 bit integer";
}

template <>
void OperatorGetTypeName::execute<unsigned long long>() {
    result = "unsigned 64 bit or hex";
}

template <>
void OperatorGetTypeName::execute<double>() {
    result = "double";
}

template <>
void OperatorGetTypeName::execute<const char*>() {
    result = "string";
}

// Calls operation.execute with the native type of a declared code; other codes have none.
template <typename Operation>
void executeAs(das_variant_type_t type, Operation& operation) {
    // The one place that knows which types can be declared; the operations are written once for
    // each of them. Unsigned and signed 64 bits are long long, so that it is the same on every
    // platform.
    switch (type) {
        case vtBool:
            return operation.template execute<bool>();
        case vtS32:
            return operation.template execute<int>();
        case vtU32:
            return operation.template execute<unsigned>();
        case vtS64:
            return operation.template execute<long long>();
        case vtU64:
            return operation.template execute<unsigned long long>();
        case vtDouble:
            return operation.template execute<double>();
        case vtString:
            return operation.template execute<const char*>();
        default:
            return;
    }
}

}  // namespace

void OptionDescription::fromString(std::string_view text,
                                   variant_t& converted,
                                   TextLocale locale,
                                   plinth2::SharedTexts& texts) const {
    OperationFromString operation{text, locale, texts, converted};
    executeAs(type, operation);
}

std::string OptionDescription::toString(const variant_t& value) const {
    OperationToString operation{value, {}};
    executeAs(type, operation);
    return std::move(operation.result);
}

std::string OptionDescription::getTypeName() const {
    OperatorGetTypeName operation;
    executeAs(type, operation);
    return operation.result;
}

std::string OptionDescription::getDefaultValueAsText() const { return toString(defaultVal); }

}  // namespace zarn_3_3
