#include "parser/action_rules.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <vector>

#include "options/action_modifiers.h"
#include "options/registered_option_storage.h"
#include "parser/action_groups.h"
#include "parser/messages.h"
#include "recognizers/failure.h"
#include "result/parse_result.h"
#include "text/heap_sort.h"
#include "zarn/parser.h"

namespace zarn_3_3::internal {
namespace {

// A name in the result with the item that it belongs to.
struct GivenItem {
    const StoredOption* entry;
    const OptionDescription* item;
};

// Every entry of the result. The order of the names decides which broken rule is reported; without
// actions no rule can be broken and they stay as they are.
std::vector<GivenItem> entriesToCheck(const RegisteredOptionStorage& registry,
                                      const ParseResult& result) {
    std::vector<GivenItem> given;
    given.reserve(result.entries().size());
    for (const StoredOption& entry : result.entries()) {
        given.push_back({&entry, nullptr});
    }
    if (registry.hasActions()) {
        heapSort(given, [](const GivenItem& a, const GivenItem& b) {
            return a.entry->name < b.entry->name;
        });
    }
    return given;
}

// Two passes over the entries: the first finds the actions and whether they go together, the second
// asks each modifier whether one of them takes it. A broken rule of the first kind is told first.
class ActionCheck {
public:
    ActionCheck(const RegisteredOptionStorage& registry,
                const ActionGroups& groups,
                std::string& error,
                FailureNote& failure)
        : registry_(registry), groups_(groups), error_(error), failure_(failure) {}

    int check(const ParseResult& result) {
        std::vector<GivenItem> given = entriesToCheck(registry_, result);
        for (GivenItem& one : given) {
            const int code = take(one);
            if (code != resultOk) {
                return code;
            }
        }
        if (firstAction_ != nullptr) {
            return checkModifiers(given);
        }
        if (registry_.hasActions() && isOptionSeen_) {
            return refuse(noAction, "", "", messages::noAction);
        }
        return resultOk;
    }

private:
    // `value`: the other item that it is about.
    int refuse(DiagnosticKind kind,
               std::string_view item,
               std::string_view value,
               const std::string& message) {
        error_ = message;
        failure_.make(kind, {}, {}, item, value);
        return resultRuleBroken;
    }

    int take(GivenItem& given) {
        std::size_t index = 0;
        const result_t found = findOption(given.entry->name, index, registry_);
        // A name that another parser stored. Kept: the code of the lookup becomes that of the
        // parse, which reads as a veto, and the error text stays as it was.
        if (found != resultSuccess) {
            failure_.make(unknownResultName, {}, {}, given.entry->name);
            return found;
        }
        given.item = &registry_.items()[index];
        if (given.item->kind != kindAction) {
            // A default is enough: the tool has something set, and nothing to do with it.
            isOptionSeen_ = true;
            return resultOk;
        }
        return takeAction(*given.item);
    }

    int takeAction(const OptionDescription& action) {
        // Two entries of one action exclude each other as little as one does itself.
        const bool isFirst = firstAction_ == nullptr;
        if (isFirst) {
            firstAction_ = &action;
        }
        // An action with synonyms stands in the result under each of them.
        if (actions_.insert(action.primaryName()).second) {
            narrowGroups(action.primaryName(), isFirst);
        }
        if (&action != firstAction_ && !assertActionsCanBeUsedSimultaneously()) {
            const std::string& name = action.primaryName();
            const std::string& first = firstAction_->primaryName();
            return refuse(actionsExclude, name, first, messages::actionsExclude(name, first));
        }
        return resultOk;
    }

    // Whether a group holds all the actions that were given so far.
    bool assertActionsCanBeUsedSimultaneously() const { return !commonGroups_.empty(); }

    void narrowGroups(const std::string& action, bool isFirst) {
        // Both lists ascend, so that what they share is found in one walk.
        const std::vector<std::size_t>& holding = groups_.holding(action);
        if (isFirst) {
            commonGroups_ = holding;
            return;
        }
        std::vector<std::size_t> stillCommon;
        std::set_intersection(commonGroups_.begin(),
                              commonGroups_.end(),
                              holding.begin(),
                              holding.end(),
                              std::back_inserter(stillCommon));
        commonGroups_.swap(stillCommon);
    }

    // One that has only its default is never refused.
    int checkModifiers(const std::vector<GivenItem>& given) {
        for (const GivenItem& one : given) {
            const OptionDescription& item = *one.item;
            if (item.isModifier() && one.entry->occurrences() != 0 &&
                !isIntersected(item.tags, actions_)) {
                const std::string& name = item.primaryName();
                const std::string& action = firstAction_->primaryName();
                return refuse(
                    actionRefusesOption, name, action, messages::actionRefusesOption(action, name));
            }
        }
        return resultOk;
    }

    const RegisteredOptionStorage& registry_;
    const ActionGroups& groups_;
    std::string& error_;
    FailureNote& failure_;
    const OptionDescription* firstAction_ = nullptr;
    bool isOptionSeen_ = false;
    std::set<std::string> actions_;          // the primary names of those given
    std::vector<std::size_t> commonGroups_;  // that hold all of them
};

}  // namespace

int checkActionRules(const RegisteredOptionStorage& registry,
                     const ActionGroups& groups,
                     const ParseResult& result,
                     std::string& error,
                     FailureNote& failure) {
    return ActionCheck(registry, groups, error, failure).check(result);
}

}  // namespace zarn_3_3::internal
