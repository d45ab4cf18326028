#include "help/formatted_help.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

#include "help/columns.h"
#include "help/messages.h"
#include "help/shown_item.h"
#include "help/wrapped_text.h"
#include "text/typed_form.h"

namespace zarn_3_3::internal {
namespace {

// Below this width descriptions stand in lines of their own.
constexpr std::size_t leastForTwoColumns = 50;
// More actions than these share a usage line.
constexpr std::size_t mostUsageLines = 5;

constexpr std::size_t entryIndent = 2;
constexpr std::size_t shortNameWidth = 4;  // "-l, "
constexpr std::size_t furtherIndent = 4;   // of what goes on in the next line
constexpr std::size_t ownLineIndent = 8;
constexpr std::size_t columnGap = 3;

std::string underlined(std::string_view text) {
    return std::string("\x1b[4m").append(text).append("\x1b[0m");
}

// What has no section stands under a title for what it is.
enum Group : std::uint8_t { itsActions, itsArguments, optionsOfActions, commonOptions };

// A block of items below one title, in the order in which blocks stand: its section, its group and,
// of the options of some actions, the first one with these.
using Place = std::uint64_t;

constexpr Place placeAt(std::size_t section, Group group, std::size_t firstItem) {
    constexpr unsigned itemBits = 32;
    constexpr unsigned groupBits = 2;
    return ((Place{section} << groupBits | group) << itemBits) | firstItem;
}

// Where an action is asked for, null stands for the vocabulary as a whole.
class HelpWriter {
public:
    HelpWriter(const RegisteredOptionStorage& registry, const HelpLook& look)
        : look_(look), sections_(registry.sectionList()), items_(registry), text_(look.width) {}

    std::string whole() {
        addUsage();
        addParagraph(look_.summary);
        addBlocks(nullptr);
        return finished();
    }

    std::string of(std::size_t item) {
        const ShownItem& shown = items_.all()[item];
        if (shown.isAction()) {
            text_.add(underlined(messages::usage), 0);
            addUsageOf(&shown);
            addParagraph(shown.description(""));
            addBlocks(&shown);
        } else {
            chooseColumn({
                {0, &shown}
            });
            addEntry(shown, items_.actionNames(shown, messages::orElse));
        }
        return finished();
    }

private:
    using Blocks = std::multimap<Place, const ShownItem*>;

    std::string finished() {
        text_.endLine();
        // Taken out at the end: emphasis has no columns, so lines break alike with it and without.
        return look_.isEmphasized ? text_.take() : withoutEmphasis(text_.take());
    }

    void addParagraph(std::string_view text) {
        if (!text.empty()) {
            text_.separate();
            text_.add(text, 0);
        }
    }

    static std::size_t usageIndent() { return std::string_view(messages::usage).size() + 1; }

    void addUsageWord(std::string_view word) { text_.add(word, usageIndent() + furtherIndent); }

    void addUsage() {
        text_.add(underlined(messages::usage), 0);
        if (items_.visibleActions() == 0 || items_.visibleActions() > mostUsageLines) {
            addUsageOf(nullptr);
            return;
        }
        for (const ShownItem& shown : items_.all()) {
            if (shown.isAction() && !shown.isHidden) {
                addUsageOf(&shown);
                text_.endLine();
                text_.moveTo(usageIndent());
            }
        }
    }

    // How to call the tool with this action; null: with whatever action.
    void addUsageOf(const ShownItem* action) {
        if (!look_.tool.empty()) {
            addUsageWord(bold(look_.tool));
        }
        if (action != nullptr) {
            addUsageWord(action->asTyped());
        } else if (items_.visibleActions() != 0) {
            addUsageWord(messages::anyAction);
        }
        addUsageOptions(action);
        addUsagePlaces(action);
    }

    static bool isIn(const ShownItem& shown, const ShownItem* action) {
        return action == nullptr || shown.goesWith(*action);
    }

    // What one action requires is no matter of the line for all of them.
    static bool isRequired(const ShownItem& shown, const ShownItem* action) {
        return shown.item->isRequired && (action != nullptr || shown.actions.empty());
    }

    void addUsageOptions(const ShownItem* action) {
        bool hasOthers = false;
        for (const ShownItem& shown : items_.all()) {
            if (shown.isHidden || !shown.isOption() || !isIn(shown, action)) {
                continue;
            }
            if (isRequired(shown, action)) {
                addUsageWord(shown.asTyped());
            } else {
                hasOthers = true;
            }
        }
        addUsageWord(hasOthers ? messages::anyOptions : "");
    }

    void addUsagePlaces(const ShownItem* action) {
        std::vector<const ShownItem*> places;
        for (const ShownItem& shown : items_.all()) {
            if (!shown.isHidden && shown.item->isPositional && isIn(shown, action)) {
                places.push_back(&shown);
            }
        }
        addUsageWord(look_.takesTerminator && !places.empty() ? messages::anyTerminator : "");
        for (const ShownItem* const shown : places) {
            addUsageWord(shown->place(isRequired(*shown, action), shown == places.back()));
        }
    }

    void addBlocks(const ShownItem* action) {
        // Items of one block keep the order in which they go in, that of their declaration.
        Blocks blocks;
        for (const ShownItem& shown : items_.all()) {
            if (isIn(shown, action) && (look_.showsHidden || !shown.isHidden)) {
                blocks.emplace(placeOf(shown, action), &shown);
            }
        }
        chooseColumn(blocks);
        const Place* before = nullptr;
        for (const auto& [place, shown] : blocks) {
            if (before == nullptr || *before != place) {
                addTitle(titleOf(*shown, action));
            }
            // Where no title tells with which actions an item goes, its entry does.
            const bool tellsActions =
                action == nullptr && groupOf(*shown, action) != optionsOfActions;
            addEntry(*shown, tellsActions ? items_.actionNames(*shown, messages::orElse) : "");
            before = &place;
        }
    }

    Group groupOf(const ShownItem& shown, const ShownItem* action) const {
        const Section& section = sections_[shown.item->section];
        // A section is in its author's own order, and is not divided.
        if (shown.isHidden || !section.key.empty() || !section.title.empty()) {
            return commonOptions;
        }
        if (!shown.isOption()) {
            return shown.isAction() ? itsActions : itsArguments;
        }
        // In the whole help, what goes with all visible actions is common; in that of one action,
        // which says nothing of the others, it is still an option of that action.
        const bool isCommon =
            action != nullptr ? shown.actions.empty() : items_.actionNames(shown, "").empty();
        return isCommon ? commonOptions : optionsOfActions;
    }

    Place placeOf(const ShownItem& shown, const ShownItem* action) const {
        const Group group = groupOf(shown, action);
        const bool isApart = group == optionsOfActions && action == nullptr;
        return placeAt(shown.isHidden ? sections_.size() : shown.item->section,
                       group,
                       // Looks at all items, so only where it decides.
                       isApart ? firstWithActionsOf(shown) : 0);
    }

    std::size_t firstWithActionsOf(const ShownItem& shown) const {
        const std::vector<ShownItem>& all = items_.all();
        const auto first = std::find_if(all.begin(), all.end(), [&](const ShownItem& other) {
            return other.actions == shown.actions && other.isOption();
        });
        return static_cast<std::size_t>(first - all.begin());
    }

    std::string titleOf(const ShownItem& shown, const ShownItem* action) const {
        const Section& section = sections_[shown.item->section];
        if (!section.title.empty()) {
            return section.title;
        }
        if (shown.isHidden) {
            return messages::hiddenOptions;
        }
        if (!section.key.empty()) {
            return section.key;
        }
        const Group group = groupOf(shown, action);
        if (group != optionsOfActions) {
            return group == itsActions     ? messages::actions
                   : group == itsArguments ? messages::arguments
                                           : messages::options;
        }
        return messages::optionsOf + (action != nullptr
                                          ? typedForm(action->item->primaryName())
                                          : items_.actionNames(shown, messages::andAlso));
    }

    void addTitle(const std::string& title) {
        const bool isSentence = std::string_view(".:!?").find(title.back()) != std::string::npos;
        addParagraph(underlined(title) + (isSentence ? "" : ":"));
        text_.endLine();
    }

    // Descriptions begin behind the widest of the heads that leave room for them.
    void chooseColumn(const Blocks& blocks) {
        const std::size_t furthest = look_.width * 2 / 5;
        // Before any column is measured: one short name moves all heads that have none.
        for (const auto& [place, shown] : blocks) {
            hasShortNames_ = hasShortNames_ || shown->hasShortName();
        }
        for (const auto& [place, shown] : blocks) {
            const std::size_t column = indentOf(*shown) + columnsOf(shown->head()) + columnGap;
            column_ = column <= furthest ? std::max(column_, column) : column_;
        }
    }

    bool isNarrow() const { return look_.width < leastForTwoColumns; }

    // Long names stand below each other, whether there is a short one in front of them or not.
    std::size_t indentOf(const ShownItem& shown) const {
        const bool leavesRoom =
            hasShortNames_ && !isNarrow() && !shown.hasShortName() && !shown.item->isPositional;
        return entryIndent + (leavesRoom ? shortNameWidth : 0);
    }

    void addEntry(const ShownItem& shown, const std::string& actionNames) {
        text_.moveTo(indentOf(shown));
        text_.add(shown.head(), entryIndent + furtherIndent);
        if (isNarrow()) {
            text_.endLine();
        }
        const std::size_t column = isNarrow() ? ownLineIndent : column_;
        text_.moveTo(column);
        text_.add(shown.description(actionNames), column);
        text_.endLine();
    }

    const HelpLook& look_;
    const SectionList& sections_;
    ShownItems items_;
    WrappedText text_;
    bool hasShortNames_ = false;
    std::size_t column_ = ownLineIndent;
};

}  // namespace

std::string formattedHelp(const RegisteredOptionStorage& registry, const HelpLook& look) {
    return HelpWriter(registry, look).whole();
}

std::string formattedHelpOf(const RegisteredOptionStorage& registry,
                            const HelpLook& look,
                            std::size_t item) {
    return HelpWriter(registry, look).of(item);
}

}  // namespace zarn_3_3::internal
