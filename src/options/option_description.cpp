#include "options/option_description.h"

#include <exception>

#include "text/split.h"

namespace zarn_3_3 {
namespace {

// A setting that cannot be made, for want of memory, leaves the item as it was.
template <typename Setting>
void makeOrLeave(Setting setting) noexcept {
    try {
        setting();
    } catch (const std::exception&) {
    }
}

}  // namespace

IOption& OptionDescription::synonym(const char* name) {
    if (name != nullptr) {
        makeOrLeave([&] { names.add(name); });
    }
    return *this;
}

IOption& OptionDescription::allowValue(const variant_t& value) {
    makeOrLeave([&] {
        // Kept: where values stay whole, those of an item with allowed values are cut all the same.
        allowedValues.push_back(value);
        if (tokenizer == 0) {
            tokenizer = ',';
        }
    });
    return *this;
}

IOption& OptionDescription::allowDeprecatedValue(const variant_t& deprecated,
                                                 const variant_t& replacement) {
    // The first replacement stays: emplace does not look at a second one.
    makeOrLeave([&] { deprecatedValues.emplace(deprecated, replacement); });
    return *this;
}

IOption& OptionDescription::defaultValue(const variant_t& value) {
    // A copy shares its data, so that this cannot fail.
    defaultVal = value;
    hasDefault = true;
    return *this;
}

IOption& OptionDescription::tokenize(char separator) {
    tokenizer = separator;
    return *this;
}

IOption& OptionDescription::positional() {
    isPositional = true;
    return *this;
}

IOption& OptionDescription::tag(const char* tagList) {
    if (tagList != nullptr) {
        makeOrLeave([&] {
            // Cut apart first: moving nodes over cannot fail, so that it is all tags or none.
            std::set<std::string> added;
            split(tagList, added);
            tags.merge(added);
        });
    }
    return *this;
}

// Taken for each argument of the item declared last while somebody listens: what only help and
// rules ask for stays out.
OptionDescription OptionDescription::forBinding() const {
    OptionDescription copy;
    copy.names = names;
    copy.kind = kind;
    copy.tokenizer = tokenizer;
    copy.type = type;
    copy.allowedValues = allowedValues;
    copy.deprecatedValues = deprecatedValues;
    return copy;
}

bool OptionDescription::operator<(const OptionDescription& other) const {
    return primaryName() < other.primaryName();
}

const std::string& OptionDescription::noName() {
    // Made when it is first asked for: a parser may itself be a static object.
    static const std::string empty;
    return empty;
}

}  // namespace zarn_3_3
