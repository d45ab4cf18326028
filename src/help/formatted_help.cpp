#include "help/formatted_help.h"

#include <algorithm>

#include "help/columns.h"
#include "help/help_blocks.h"
#include "help/messages.h"
#include "help/wrapped_text.h"

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

class HelpWriter {
public:
    HelpWriter(const RegisteredOptionStorage& registry, const HelpLook& look)
        : look_(look),
          items_(shownItems(registry)),
          blocks_(items_, registry.sectionList()),
          text_(look.width) {}

    std::string whole() {
        addUsage();
        addParagraph(look_.summary);
        addBlocks(nullptr);
        return finished();
    }

    std::string of(std::size_t item) {
        const ShownItem& shown = items_[item];
        if (shown.isAction()) {
            beginUsage();
            addUsageOf(&shown);
            addParagraph(shown.description(""));
            addBlocks(&shown);
        } else {
            chooseColumn({
                {"", {&shown}, true}
            });
            addEntry(shown, true);
        }
        return finished();
    }

private:
    std::string finished() {
        text_.endLine();
        return text_.take();
    }

    void addParagraph(std::string_view text) {
        if (!text.empty()) {
            text_.separate();
            text_.add(text, 0);
        }
    }

    void beginUsage() { text_.add(underlined(messages::usage, look_.isEmphasized), 0); }

    void addUsage() {
        beginUsage();
        const std::vector<const ShownItem*>& actions = blocks_.actions();
        if (actions.empty() || actions.size() > mostUsageLines) {
            addUsageOf(nullptr);
            return;
        }
        for (const ShownItem* const action : actions) {
            if (action != actions.front()) {
                text_.endLine();
                text_.moveTo(usageIndent());
            }
            addUsageOf(action);
        }
    }

    static std::size_t usageIndent() { return columnsOf(messages::usage) + 1; }

    void addUsageWord(std::string_view word) { text_.add(word, usageIndent() + furtherIndent); }

    // How to call the tool with this action; null: with whatever action.
    void addUsageOf(const ShownItem* action) {
        addUsageWord(bold(look_.tool, look_.isEmphasized));
        if (action != nullptr) {
            addUsageWord(action->asTyped(look_.isEmphasized));
        } else if (!blocks_.actions().empty()) {
            addUsageWord(messages::anyAction);
        }
        addUsageOptions(action);
        addUsagePlaces(action);
    }

    bool isInUsage(const ShownItem& shown, const ShownItem* action) const {
        return !shown.isHidden && (action == nullptr || goesWith(shown, *action));
    }

    // What one action requires is no matter of the line for all of them.
    static bool isRequired(const ShownItem& shown, const ShownItem* action) {
        return shown.item->isRequired && (action != nullptr || shown.actions.empty());
    }

    void addUsageOptions(const ShownItem* action) {
        bool hasOthers = false;
        for (const ShownItem& shown : items_) {
            if (!shown.isOption() || !isInUsage(shown, action)) {
                continue;
            }
            if (isRequired(shown, action)) {
                addUsageWord(shown.asTyped(look_.isEmphasized));
            } else {
                hasOthers = true;
            }
        }
        addUsageWord(hasOthers ? messages::anyOptions : "");
    }

    void addUsagePlaces(const ShownItem* action) {
        std::vector<const ShownItem*> places;
        for (const ShownItem& shown : items_) {
            if (shown.item->isPositional && isInUsage(shown, action)) {
                places.push_back(&shown);
            }
        }
        addUsageWord(look_.takesTerminator && !places.empty() ? messages::anyTerminator : "");
        for (const ShownItem* const shown : places) {
            addUsageWord(shown->place(isRequired(*shown, action), shown == places.back()));
        }
    }

    void addBlocks(const ShownItem* action) {
        const std::vector<HelpBlock> blocks = blocks_.of(action, look_.showsHidden);
        chooseColumn(blocks);
        for (const HelpBlock& block : blocks) {
            const bool isSentence =
                std::string_view(".:!?").find(block.title.back()) != std::string_view::npos;
            addParagraph(underlined(block.title, look_.isEmphasized) + (isSentence ? "" : ":"));
            text_.endLine();
            for (const ShownItem* const shown : block.items) {
                addEntry(*shown, block.tellsActions);
            }
        }
    }

    // Descriptions begin behind the widest of the heads that leave room for them.
    void chooseColumn(const std::vector<HelpBlock>& blocks) {
        const std::size_t furthest = look_.width * 2 / 5;
        forEach(blocks, [&](const ShownItem& shown) {
            hasShortNames_ = hasShortNames_ || shown.hasShortName();
        });
        forEach(blocks, [&](const ShownItem& shown) {
            const std::size_t column = indentOf(shown) + columnsOf(shown.head(false)) + columnGap;
            column_ = column <= furthest ? std::max(column_, column) : column_;
        });
    }

    template <typename Do>
    static void forEach(const std::vector<HelpBlock>& blocks, Do then) {
        for (const HelpBlock& block : blocks) {
            for (const ShownItem* const shown : block.items) {
                then(*shown);
            }
        }
    }

    bool isNarrow() const { return look_.width < leastForTwoColumns; }

    // Long names stand below each other, whether there is a short one in front of them or not.
    std::size_t indentOf(const ShownItem& shown) const {
        const bool leavesRoom =
            hasShortNames_ && !isNarrow() && !shown.hasShortName() && !shown.item->isPositional;
        return entryIndent + (leavesRoom ? shortNameWidth : 0);
    }

    void addEntry(const ShownItem& shown, bool tellsActions) {
        text_.moveTo(indentOf(shown));
        text_.add(shown.head(look_.isEmphasized), entryIndent + furtherIndent);
        const std::size_t column = isNarrow() ? ownLineIndent : column_;
        if (isNarrow()) {
            text_.endLine();
        }
        text_.moveTo(column);
        text_.add(
            shown.description(tellsActions ? blocks_.actionNames(shown, messages::orElse) : ""),
            column);
        text_.endLine();
    }

    const HelpLook& look_;
    std::vector<ShownItem> items_;
    HelpBlocks blocks_;
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
