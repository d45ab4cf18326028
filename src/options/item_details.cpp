// What is known of an item beside what its options are parsed by.

#include "options/registered_option_storage.h"

namespace zarn_3_3 {

bool RegisteredOptionStorage::isDeclared(std::string_view name,
                                         bool isAction,
                                         const char* section) const {
    // Synonyms give one name to several items, so that the first one need not be the one asked for.
    return names().isAnyNamed(name, [&](std::size_t number) {
        const OptionDescription& item = options[number];
        return (item.kind == kindAction) == isAction &&
               (section == nullptr || sectionKey(item) == section);
    });
}

void RegisteredOptionStorage::takeAnyText(std::size_t number) {
    OptionDescription& item = options[number];
    declaredAs_.emplace(number, item);
    item.type = vtString;
    item.allowedValues.clear();
    item.deprecatedValues.clear();
    item.tokenizer = 0;
}

const OptionDescription& RegisteredOptionStorage::asDeclared(std::size_t number) const {
    const auto kept = declaredAs_.find(number);
    return kept != declaredAs_.end() ? kept->second : options[number];
}

std::string_view RegisteredOptionStorage::helpName(std::size_t number,
                                                   std::string HelpNames::*which) const {
    const auto named = helpNames_.find(number);
    return named != helpNames_.end() ? std::string_view(named->second.*which) : std::string_view();
}

}  // namespace zarn_3_3
