// The vocabulary of a parser: its items in the order of declaration.

#ifndef ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H
#define ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "options/name_index.h"
#include "options/option_list.h"
#include "options/prefix_index.h"
#include "text/status.h"
#include "text/text_arena.h"
#include "text/text_table.h"

namespace zarn_3_3 {

// Only grows, and only the item declared last changes: the reference that a declaration hands out
// is valid until the next one.
class RegisteredOptionStorage final {
public:
    // Declares an item. A refused declaration, or one for which memory runs out, hands out the
    // sink. Nothing is thrown.
    virtual IOption& option(const char* names,
                            const char* actionNames,
                            const char* description,
                            bool isAction,
                            das_variant_type_t type,
                            const char* section);
    virtual IOption& action(const char* names,
                            const char* description,
                            das_variant_type_t type,
                            const char* section);
    virtual IOption& modifier(const char* names,
                              const char* actionNames,
                              const char* description,
                              das_variant_type_t type,
                              const char* section);

    // Makes an item take texts of any kind, whole.
    void takeAnyText(std::size_t number);

    // The character at which the items declared from now on cut their values.
    void setSeparator(char c) { separator = c; }

    const OptionList& items() const { return options; }

    // The (key, title) pairs of the help in the order of their first mention; an item's `section`
    // counts in them.
    const std::vector<std::pair<std::string, std::string>>& sectionPairs() const {
        return sections;
    }
    const std::string& sectionKey(const OptionDescription& item) const {
        return sections[item.section].first;
    }

    bool hasActions() const { return actionCount != 0; }

    // Whether an item has exactly this name, among the actions or among the others, and with a
    // section that is not null in the one with that key.
    bool isDeclared(std::string_view name, bool isAction, const char* section) const;

    // Whether settings can still be made on the item: it is the one declared last.
    bool isOpen(std::size_t item) const { return item + 1 == options.size(); }

    // The index of the first positional item, or NameIndex::none.
    std::size_t firstPositional() const;

    // The index over all names, up to date.
    const internal::NameIndex& names() const;

    // What `beginning` can stand for, among the forms of the index. Throws std::bad_alloc.
    internal::PrefixIndex::Found findBeginning(std::string_view beginning) const;

private:
    IOption& declare(const char* names,
                     const char* actionNames,
                     const char* description,
                     bool isAction,
                     das_variant_type_t type,
                     const char* section);
    std::uint32_t findOrAddSection(std::string_view section);
    IOption& refused() noexcept;

    char separator = ',';
    OptionList options;
    internal::TextArena descriptions;
    std::vector<std::pair<std::string, std::string>> sections;
    internal::TextTable sectionTable;  // key to section
    std::size_t actionCount = 0;
    OptionDescription sink;  // takes the settings of refused declarations; never searched or shown

    mutable internal::NameIndex index;
    mutable std::unique_ptr<internal::PrefixIndex>
        prefixIndex;  // null until something is abbreviated
    mutable std::size_t positionalItem = internal::NameIndex::none;  // as far as it was looked for
};

// Refuses (resultFailure) four names and more, and three of which the third has more than two
// characters.
result_t validateName(const std::vector<std::string>& names);

// The first item that has the name, or is a boolean of which it is the "no-" form: its index in
// `index`, or resultFailure.
result_t findOption(std::string_view name,
                    std::size_t& index,
                    const RegisteredOptionStorage& registry);

// The same for the first of `names` that is found.
result_t findOption(const std::vector<std::string>& names,
                    std::size_t& index,
                    const RegisteredOptionStorage& registry);

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H
