// Which items stand together in a help text, and under which title.

#ifndef ZARN_HELP_HELP_BLOCKS_H
#define ZARN_HELP_HELP_BLOCKS_H

#include <string>
#include <vector>

#include "help/shown_item.h"
#include "options/section_list.h"

namespace zarn_3_3::internal {

struct HelpBlock {
    std::string title;  // without the colon
    std::vector<const ShownItem*> items;
    bool tellsActions;  // whether entries say with which actions they go
};

// A vocabulary in blocks. Where an action is asked for, null stands for the vocabulary as a whole.
class HelpBlocks {
public:
    HelpBlocks(const std::vector<ShownItem>& items, const SectionList& sections);

    // Section by section. What has no section stands under a title for what it is: actions,
    // arguments, the options of some actions, those of all. Hidden items, if they are wanted, come
    // last. Of an action: what may be given with it.
    std::vector<HelpBlock> of(const ShownItem* action, bool withHidden) const;

    // The actions that are not hidden.
    const std::vector<const ShownItem*>& actions() const { return actions_; }

    // The actions, not hidden ones, with which the item goes: "--pack or --list". Empty for all.
    std::string actionNames(const ShownItem& shown, const char* lastSeparator) const;

private:
    struct Place;

    Place placeOf(const ShownItem& shown, const ShownItem* action) const;
    HelpBlock blockAt(const Place& place, const ShownItem& shown, const ShownItem* action) const;
    std::string titleAt(const Place& place, const ShownItem& shown, const ShownItem* action) const;
    std::vector<std::size_t> actionsOf(const ShownItem& shown) const;

    const std::vector<ShownItem>& items_;
    const SectionList& sections_;
    std::vector<const ShownItem*> actions_;
};

// Whether the item is no action, and may be given with this one.
bool goesWith(const ShownItem& shown, const ShownItem& action);

}  // namespace zarn_3_3::internal

#endif  // ZARN_HELP_HELP_BLOCKS_H
