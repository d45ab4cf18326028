#include "vocabulary/value_words.h"

#include <array>
#include <charconv>

namespace zarn_3_3::internal {

using namespace plinth2;

namespace {

// The shortest one that is read back as the same number.
std::string exactText(double number) {
    // No double takes more than twenty-four characters so.
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

}  // namespace

const char* typeWord(das_variant_type_t type) {
    switch (type) {
        case vtNull:
            return "switch";
        case vtBool:
            return "boolean";
        case vtS32:
            return "int32";
        case vtU32:
            return "uint32";
        case vtS64:
            return "int64";
        case vtU64:
            return "uint64";
        case vtDouble:
            return "double";
        case vtString:
            return "text";
        default:
            return "";
    }
}

std::string typedText(const variant_t& value) {
    const auto type = value.type();
    if (type == vtDouble) {
        return exactText(value.get<double>());
    }
    if (type > vtDouble) {
        return get_variant_value(value, "");
    }
    // std::to_string of a whole number asks no locale.
    const bool isUnsigned = type % 2 != 0;  // see das_variant_type_t
    return isUnsigned ? std::to_string(value.get<unsigned long long>())
                      : std::to_string(value.get<long long>());
}

}  // namespace zarn_3_3::internal
