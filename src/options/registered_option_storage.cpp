#include "options/registered_option_storage.h"

#include <exception>
#include <utility>

#include "log/zarn_log.h"
#include "options/messages.h"
#include "text/split.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

std::string_view orEmpty(const char* text) { return text == nullptr ? "" : text; }

}  // namespace

// What a client says of an item, without null texts.
struct RegisteredOptionStorage::Declaration {
    std::string_view names;
    std::string_view actionNames;
    std::string_view description;
    std::string_view section;
    bool isAction;
    das_variant_type_t type;
};

IOption& RegisteredOptionStorage::action(const char* names,
                                         const char* description,
                                         das_variant_type_t type,
                                         const char* section) {
    return option(names, nullptr, description, true, type, section);
}

IOption& RegisteredOptionStorage::option(const char* names,
                                         const char* actionNames,
                                         const char* description,
                                         bool isAction,
                                         das_variant_type_t type,
                                         const char* section) {
    try {
        return declare({orEmpty(names),
                        orEmpty(actionNames),
                        orEmpty(description),
                        orEmpty(section),
                        isAction,
                        type});
        // Clients chain settings onto whatever they get, without a look: they get something that
        // takes them.
    } catch (const std::exception&) {
        return refused(RefusalReason::noMemory, orEmpty(names));
    }
}

IOption& RegisteredOptionStorage::modifier(const char* names,
                                           const char* actionNames,
                                           const char* description,
                                           das_variant_type_t type,
                                           const char* section) {
    return option(names, actionNames, description, false, type, section);
}

IOption& RegisteredOptionStorage::declare(const Declaration& given) {
    // Kept: a declaration that is refused opens its section, and help shows it without items.
    const std::uint32_t section = sections.findOrAdd(given.section);
    GivenNames nameList;
    split(given.names, nameList);
    if (validateName(nameList) != resultSuccess) {
        return nameList.size() > GivenNames::most
                   ? refused(RefusalReason::tooManyNames, given.names)
                   : refused(RefusalReason::longThirdName, given.names, nameList[2]);
    }
    if (const std::string_view* const taken = findTaken(nameList)) {
        // Whoever declares has no code to look at, only a handle.
        trace(messages::nameIsTaken, given.names);
        return refused(RefusalReason::nameTaken, given.names, *taken);
    }
    // The handle of the item before ends here: whether that became positional is known now, and
    // nobody looks at it again.
    firstPositional();
    // What can fail comes first, on an item that is taken back then. Behind it nothing does.
    OptionDescription& item = options.add();
    try {
        for (const std::string_view name : nameList) {
            item.names.add(name);
        }
        item.description = descriptions_.keep(given.description);
        if (!given.actionNames.empty()) {
            split(given.actionNames, item.tags);
        }
        // The tags of an action are its names: that is how its modifiers name it.
        if (given.isAction) {
            split(given.names, item.tags);
        }
    } catch (...) {
        options.removeLast();
        throw;
    }
    item.section = section;
    item.kind = given.isAction ? kindAction : kindOption;
    item.type = given.type;
    item.tokenizer = separator;
    actionCount_ += given.isAction ? 1 : 0;
    return item;
}

// As a name or as the "no-" form of a boolean.
const std::string_view* RegisteredOptionStorage::findTaken(const GivenNames& nameList) const {
    for (const std::string_view& name : nameList) {
        if (names().first(name) != NameIndex::none) {
            return &name;
        }
    }
    return nullptr;
}

result_t validateName(const GivenNames& names) {
    const bool isRefused =
        names.size() > GivenNames::most ||
        (names.size() == GivenNames::most && names[2].size() > GivenNames::longestThird);
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

}  // namespace zarn_3_3
