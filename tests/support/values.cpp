#include "support/values.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace zarn_3_3::testing_support {
namespace {

const std::pair<const char*, das_variant_type_t> kinds[] = {
    {"bool",    vtBool      },
    {"s32",     vtS32       },
    {"u32",     vtU32       },
    {"s64",     vtS64       },
    {"u64",     vtU64       },
    {"double",  vtDouble    },
    {"string",  vtString    },
    {"wide",    vtWString   },
    {"ref",     vtStringRef },
    {"wideref", vtWStringRef},
    {"blob",    vtBlob      },
    {"switch",  vtNull      },
};

}  // namespace

long numberOf(const std::string& word) {
    char* end = nullptr;
    const long number = std::strtol(word.c_str(), &end, 0);
    if (word.empty() || *end != '\0') {
        throw BadStep("no number: " + word);
    }
    return number;
}

const char* pointerTo(const std::string& word) { return word == "null" ? nullptr : word.c_str(); }

das_variant_type_t kindNamed(const std::string& word) {
    for (const auto& [name, code] : kinds) {
        if (word == name) {
            return code;
        }
    }
    return static_cast<das_variant_type_t>(numberOf(word));
}

std::string contentOf(const variant_t& value) {
    switch (value.type()) {
        case vtBool:
        case vtS32:
        case vtU32:
        case vtS64:
            return std::to_string(value.get<long>());
        case vtU64:
            return std::to_string(value.get<unsigned long>());
        case vtDouble: {
            std::array<char, 32> text{};
            std::snprintf(text.data(), text.size(), "%.15g", value.get<double>());
            return text.data();
        }
        case vtString:
        case vtStringRef:
            return value.get<const char*>();
        default:
            return "";
    }
}

std::string kindOf(const variant_t& value) {
    for (const auto& [name, code] : kinds) {
        if (value.type() == code) {
            return name;
        }
    }
    return std::to_string(value.type());
}

variant_t ValueMaker::make(const std::string& word, das_variant_type_t usual) {
    const std::size_t colon = std::min(word.find(':'), word.size());
    const std::string before = word.substr(0, colon);
    const bool isKind = std::any_of(
        std::begin(kinds), std::end(kinds), [&](const auto& kind) { return before == kind.first; });
    return isKind && colon < word.size() ? makeOf(kindNamed(before), word.substr(colon + 1))
                                         : makeOf(usual, word);
}

variant_t ValueMaker::makeOf(das_variant_type_t kind, const std::string& text) {
    switch (kind) {
        case vtBool:
            return numberOf(text) != 0;
        case vtS32:
            return static_cast<int>(numberOf(text));
        case vtU32:
            return static_cast<unsigned>(numberOf(text));
        case vtS64:
            return numberOf(text);
        case vtU64:
            return std::strtoul(text.c_str(), nullptr, 0);
        case vtDouble:
            return std::strtod(text.c_str(), nullptr);
        case vtString:
            return pointerTo(text);
        case vtStringRef:
            return variant_t(narrowTexts.emplace_back(text).c_str(), true);
        case vtWString:
            return variant_t::wideText(std::wstring(text.begin(), text.end()).c_str());
        case vtWStringRef:
            return variant_t::borrowedWideText(
                wideTexts.emplace_back(text.begin(), text.end()).c_str());
        case vtBlob:
            return variant_t::blob(text.data(), text.size());
        default:
            return {};
    }
}

}  // namespace zarn_3_3::testing_support
