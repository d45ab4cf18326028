// The items of a vocabulary as help shows them.

#ifndef ZARN_HELP_SHOWN_ITEM_H
#define ZARN_HELP_SHOWN_ITEM_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "options/registered_option_storage.h"

namespace zarn_3_3::internal {

// Texts have names in emphasis.
struct ShownItem {
    const OptionDescription* item;  // as it was declared
    std::string_view valueName;     // as in usage lines
    std::string_view variable;      // of the environment
    std::size_t actionNumber;       // of an action: which one it is
    // For each action whether the item goes with it: a mark below. Empty: with every one.
    std::string actions;
    bool isHidden;

    bool isAction() const { return item->kind == kindAction; }
    bool isOption() const { return !isAction() && !item->isPositional; }
    bool hasShortName() const;

    // Whether it is no action, and may be given with this one.
    bool goesWith(const ShownItem& action) const;

    // The name with which it is typed, and its value: "--level LEVEL".
    std::string asTyped() const;

    // All its names, the short ones first: "-l, --level LEVEL". Of a positional item "FILE".
    std::string head() const;

    // How a usage line shows a positional item: "FILE", "[FILE]", "FILE...", "[FILE...]".
    std::string place(bool isRequired, bool isLast) const;

    // Its description with the allowed values and, in parentheses, what else is to be known: that
    // it is only taken with some actions ("--pack or --list", perhaps empty), its default, its
    // variable.
    std::string description(const std::string& actionNames) const;
};

class ShownItems {
public:
    explicit ShownItems(const RegisteredOptionStorage& registry);

    // In the order of declaration.
    const std::vector<ShownItem>& all() const { return items_; }

    std::size_t visibleActions() const { return visibleActions_; }

    // The actions, but for hidden ones, with which the item goes: "--pack or --list". Empty when
    // these are all.
    std::string actionNames(const ShownItem& shown, std::string_view lastSeparator) const;

private:
    void readActions(ShownItem& shown);

    std::vector<ShownItem> items_;
    std::vector<const ShownItem*> actions_;
    std::size_t visibleActions_ = 0;
};

std::string bold(std::string_view text);

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_SHOWN_ITEM_H
