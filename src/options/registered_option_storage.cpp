#include "options/registered_option_storage.h"

#include <algorithm>
#include <exception>

#include "log/zarn_log.h"
#include "options/messages.h"
#include "text/split.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

const char* orEmpty(const char* text) { return text == nullptr ? "" : text; }

}  // namespace

IOption& RegisteredOptionStorage::option(const char* names,
                                         const char* actionNames,
                                         const char* description,
                                         bool isAction,
                                         das_variant_type_t type,
                                         const char* section) {
    try {
        return declare(
            orEmpty(names), actionNames, orEmpty(description), isAction, type, orEmpty(section));
    } catch (const std::exception&) {
        return refused();
    }
}

IOption& RegisteredOptionStorage::action(const char* names,
                                         const char* description,
                                         das_variant_type_t type,
                                         const char* section) {
    return option(names, nullptr, description, true, type, section);
}

IOption& RegisteredOptionStorage::modifier(const char* names,
                                           const char* actionNames,
                                           const char* description,
                                           das_variant_type_t type,
                                           const char* section) {
    return option(names, actionNames, description, false, type, section);
}

IOption& RegisteredOptionStorage::declare(const char* names,
                                          const char* actionNames,
                                          const char* description,
                                          bool isAction,
                                          das_variant_type_t type,
                                          const char* section) {
    const std::uint32_t sectionIndex = findOrAddSection(section);
    std::vector<std::string> nameList;
    split(names, nameList);
    std::size_t taken = 0;
    if (validateName(nameList) != resultSuccess) {
        return refused();
    }
    if (findOption(nameList, taken, *this) == resultSuccess) {
        trace(messages::nameIsTaken, names);
        return refused();
    }
    firstPositional();  // the last item stays as it is from now on
    OptionDescription& item = options.add();
    try {
        item.description = descriptions.keep(description);
        if (actionNames != nullptr) {
            split(actionNames, item.tags);
        }
        if (isAction) {
            split(names, item.tags);
        }
    } catch (...) {
        options.removeLast();
        throw;
    }
    item.section = sectionIndex;
    item.names = std::move(nameList);
    item.kind = isAction ? kindAction : kindOption;
    item.type = type;
    item.tokenizer = separator;
    actionCount += isAction ? 1 : 0;
    return item;
}

std::uint32_t RegisteredOptionStorage::findOrAddSection(std::string_view section) {
    const std::size_t colon = section.find(':');
    const std::string_view key = section.substr(0, colon);
    if (!options.empty() && sectionKey(options.back()) == key) {
        return options.back().section;  // most items stand in the section of the one before
    }
    const std::uint32_t hash = TextHash::of(key);
    const std::uint32_t known = sectionTable.find(
        hash, [&](std::uint32_t number) { return sections[number].first == key; });
    if (known != TextTable::none) {
        return known;
    }
    const std::string_view title =
        colon == std::string_view::npos ? std::string_view() : section.substr(colon + 1);
    sectionTable.makeRoom(1);
    sections.emplace_back(key, title);
    sectionTable.add(hash, static_cast<std::uint32_t>(sections.size() - 1));
    return static_cast<std::uint32_t>(sections.size() - 1);
}

// What clients chain onto a refused declaration must not pile up.
IOption& RegisteredOptionStorage::refused() noexcept {
    sink = OptionDescription();
    sink.result = resultFailure;
    return sink;
}

bool RegisteredOptionStorage::isDeclared(std::string_view name,
                                         bool isAction,
                                         const char* section) const {
    return names().isAnyNamed(name, [&](std::size_t number) {
        const OptionDescription& item = options[number];
        return (item.kind == kindAction) == isAction &&
               (section == nullptr || sectionKey(item) == section);
    });
}

std::size_t RegisteredOptionStorage::firstPositional() const {
    // The item declared last may still become positional, so it is looked at each time.
    if (positionalItem == NameIndex::none && !options.empty() && options.back().isPositional) {
        positionalItem = options.size() - 1;
    }
    return positionalItem;
}

PrefixIndex::Found RegisteredOptionStorage::findBeginning(std::string_view beginning) const {
    if (prefixIndex == nullptr) {
        prefixIndex = std::make_unique<PrefixIndex>();
    }
    return prefixIndex->find(beginning, names().forms());
}

void RegisteredOptionStorage::takeAnyText(std::size_t number) {
    OptionDescription& item = options[number];
    item.type = vtString;
    item.allowedValues.clear();
    item.deprecatedValues.clear();
    item.tokenizer = 0;
}

const NameIndex& RegisteredOptionStorage::names() const {
    if (!index.isUpToDate(options)) {
        index.catchUp(options);
    }
    return index;
}

result_t validateName(const std::vector<std::string>& names) {
    constexpr std::size_t mostNames = 3;
    constexpr std::size_t longestThirdName = 2;
    const bool isRefused = names.size() > mostNames ||
                           (names.size() == mostNames && names[2].size() > longestThirdName);
    return isRefused ? resultFailure : resultSuccess;
}

result_t findOption(std::string_view name,
                    std::size_t& index,
                    const RegisteredOptionStorage& registry) {
    const std::size_t found = registry.names().first(name);
    if (found == NameIndex::none) {
        return resultFailure;
    }
    index = found;
    return resultSuccess;
}

result_t findOption(const std::vector<std::string>& names,
                    std::size_t& index,
                    const RegisteredOptionStorage& registry) {
    const bool isFound = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        return findOption(name, index, registry) == resultSuccess;
    });
    return isFound ? resultSuccess : resultFailure;
}

}  // namespace zarn_3_3
