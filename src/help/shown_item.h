// One item as help shows it.

#ifndef ZARN_HELP_SHOWN_ITEM_H
#define ZARN_HELP_SHOWN_ITEM_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "options/registered_option_storage.h"

namespace zarn_3_3::internal {

struct ShownItem {
    const OptionDescription* item;     // as it was declared
    std::size_t number;                // in the vocabulary
    std::string_view valueName;        // as in usage lines
    std::string_view variable;         // of the environment
    std::vector<std::size_t> actions;  // the numbers of those to which it belongs
    bool isHidden;

    bool isAction() const { return item->kind == kindAction; }
    bool isOption() const { return !isAction() && !item->isPositional; }
    bool hasShortName() const;

    // The name with which it is typed, and its value: "--level LEVEL".
    std::string asTyped(bool isEmphasized) const;

    // All its names, the short ones first: "-l, --level LEVEL". Of a positional item "FILE".
    std::string head(bool isEmphasized) const;

    // How a usage line shows a positional item: "FILE", "[FILE]", "FILE...", "[FILE...]".
    std::string place(bool isRequired, bool isLast) const;

    // Its description with the allowed values and, in parentheses, what else is to be known: that
    // it is only taken with some actions ("--pack or --list", perhaps empty), its default, its
    // variable.
    std::string description(const std::string& actionNames) const;
};

// All items of the vocabulary, in the order of declaration.
std::vector<ShownItem> shownItems(const RegisteredOptionStorage& registry);

// How a name is typed: "-j", "--jobs".
std::string typedForm(std::string_view name);

// The text between the switches of emphasis, when that is wanted.
std::string bold(std::string_view text, bool isEmphasized);
std::string underlined(std::string_view text, bool isEmphasized);

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_SHOWN_ITEM_H
