// The vocabulary of a parser: its items in the order of declaration.

#ifndef ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H
#define ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "options/item_indexes.h"
#include "options/option_list.h"
#include "options/section_list.h"
#include "text/status.h"
#include "text/text_arena.h"

namespace zarn_3_3 {

enum class RefusalReason { nameTaken, tooManyNames, longThirdName, noMemory };

// A declaration that was refused.
struct Refusal {
    RefusalReason reason;
    std::string names;       // as they were given
    std::string name;        // the one to blame; empty when that is none
    std::size_t before = 0;  // how many items were declared then
};

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

    // Makes an item take texts of any kind, whole. What it was declared as is kept for help and
    // description.
    void takeAnyText(std::size_t number);
    bool takesAnyText(std::size_t number) const { return declaredAs_.count(number) != 0; }

    // The item as its author declared it.
    const OptionDescription& asDeclared(std::size_t number) const;

    // For help and completion alone; keeping to it is up to the caller.
    void expect(std::size_t number, bool isRequired, bool takesOneValue, bool isValueOptional) {
        OptionDescription& item = options[number];
        item.isRequired = isRequired;
        item.takesOneValue = takesOneValue;
        item.isValueOptional = isValueOptional;
    }

    // What help and description call the value of an item; empty for the word of its type.
    void nameValue(std::size_t number, std::string_view name) { helpNames_[number].value = name; }
    std::string_view valueName(std::size_t number) const {
        return helpName(number, &HelpNames::value);
    }

    // The variable of the environment that help shows for an item; empty for none.
    void nameVariable(std::size_t number, std::string_view name) {
        helpNames_[number].variable = name;
    }
    std::string_view variableName(std::size_t number) const {
        return helpName(number, &HelpNames::variable);
    }

    // The character at which the items declared from now on cut their values.
    void setSeparator(char c) { separator = c; }

    // Has flagPositionalWithoutDash speak of all the dashes that introduce options. By itself it
    // speaks of the hyphen alone, as tools have known it.
    void refuseEveryDash() { isEveryDashRefused_ = true; }
    bool isEveryDashRefused() const { return isEveryDashRefused_; }

    const OptionList& items() const { return options; }

    // The first of those that were refused, in order, each once.
    const std::vector<Refusal>& refusals() const;

    const SectionList& sectionList() const { return sections; }
    const std::string& sectionKey(const OptionDescription& item) const {
        return sections[item.section].key;
    }

    bool hasActions() const { return actionCount_ != 0; }

    // Whether an item has exactly this name, among the actions or among the others, and with a
    // section that is not null in the one with that key.
    bool isDeclared(std::string_view name, bool isAction, const char* section) const;

    // Whether settings can still be made on the item: it is the one declared last.
    bool isOpen(std::size_t item) const { return item + 1 == options.size(); }

    // See ItemIndexes.
    const internal::NameIndex& names() const { return indexes_.names(options); }
    internal::PrefixIndex::Found findBeginning(std::string_view beginning) const {
        return indexes_.findBeginning(beginning, options);
    }
    std::size_t firstPositional() const { return indexes_.firstPositional(options); }

private:
    struct Declaration;

    // What help says of an item beside its declaration.
    struct HelpNames {
        std::string value;
        std::string variable;
    };

    std::string_view helpName(std::size_t number, std::string HelpNames::*which) const;
    IOption& declare(const Declaration& given);
    const std::string_view* findTaken(const internal::GivenNames& nameList) const;
    [[gnu::cold]] IOption& refused(RefusalReason reason,
                                   std::string_view names,
                                   std::string_view name = {}) noexcept;
    [[gnu::cold]] void note(Refusal&& refusal);

    char separator = ',';
    bool isEveryDashRefused_ = false;
    OptionList options;
    internal::TextArena descriptions_;
    SectionList sections;
    std::size_t actionCount_ = 0;
    std::map<std::size_t, HelpNames> helpNames_;
    std::map<std::size_t, OptionDescription> declaredAs_;  // of those that take any text
    std::unique_ptr<std::vector<Refusal>> refusals_;       // most tools have none
    OptionDescription sink;  // takes the settings of refused declarations; never searched or shown
    mutable internal::ItemIndexes indexes_;
};

// Refuses (resultFailure) four names and more, and three of which the third has more than two
// characters.
result_t validateName(const internal::GivenNames& names);

// The first item that has the name, or is a boolean of which it is the "no-" form: its index in
// `index`, or resultFailure.
result_t findOption(std::string_view name,
                    std::size_t& index,
                    const RegisteredOptionStorage& registry);

}  // namespace zarn_3_3

#endif  // ZARN_OPTIONS_REGISTERED_OPTION_STORAGE_H
