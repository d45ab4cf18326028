#include "vocabulary/checks.h"

#include <set>
#include <string>
#include <string_view>

#include "parser/ask_parser.h"
#include "vocabulary/messages.h"

namespace zarn_3_3 {

using namespace internal;

namespace {

std::string reasonOf(const Refusal& refusal, const RegisteredOptionStorage& registry) {
    switch (refusal.reason) {
        case RefusalReason::nameTaken: {
            const std::size_t owner = registry.names().first(refusal.name);
            return messages::refusedNameTaken(refusal.name, registry.items()[owner].primaryName());
        }
        case RefusalReason::tooManyNames:
            return messages::refusedTooManyNames;
        case RefusalReason::longThirdName:
            return messages::refusedThirdName(refusal.name);
        default:
            return messages::refusedNoMemory;
    }
}

void checkItem(std::size_t number, const RegisteredOptionStorage& registry, Findings& findings) {
    // What takes the words for several items has lost its own type and values by that.
    const OptionDescription& item = registry.asDeclared(number);
    checkNames(number, registry, findings);
    checkActions(item, registry, findings);
    checkValues(item, findings);
    // Of the modern face the first one takes arguments for all.
    const std::size_t first = registry.firstPositional();
    const bool isSecond = first < number && !registry.takesAnyText(first);
    if (item.isPositional && isSecond) {
        findings.error("second-positional",
                       item.primaryName(),
                       messages::secondPositional(registry.items()[first].primaryName()));
    }
    checkTexts(number, registry, findings);
}

void checkGroup(const std::set<std::string>& group,
                const RegisteredOptionStorage& registry,
                Findings& findings) {
    std::string names;
    for (const std::string& name : group) {
        names.append(names.empty() ? "" : ",").append(name);
    }
    for (const std::string& name : group) {
        const OptionDescription* const action = findAction(name, registry);
        if (action == nullptr) {
            findings.error("unknown-in-group", name, messages::unknownInGroup(names));
        } else if (action->primaryName() != name) {
            // The rules look for primary names: a group with a synonym allows nothing to that
            // action.
            findings.error(
                "action-synonym", name, messages::actionSynonym(name, action->primaryName()));
        }
    }
}

}  // namespace

void internal::checkVocabulary(const BasicParser& parser, Findings& findings) {
    const RegisteredOptionStorage& registry = parser.vocabulary();
    // Between the items, where their author looks for them.
    auto refusal = registry.refusals().begin();
    const auto tellRefused = [&](std::size_t before) {
        for (; refusal != registry.refusals().end() && refusal->before <= before; ++refusal) {
            const std::string& names = refusal->names;
            findings.error("refused",
                           // The first of its names, as for items, so that a finding can be ignored
                           // by it.
                           names.substr(0, names.find(',')),
                           messages::declarationRefused(names, reasonOf(*refusal, registry)));
        }
    };
    for (std::size_t number = 0; number < registry.items().size(); ++number) {
        tellRefused(number);
        checkItem(number, registry, findings);
    }
    tellRefused(registry.items().size());
    for (const auto& group : parser.actionGroups().all()) {
        checkGroup(group, registry, findings);
    }
}

int checkVocabulary(IParser* parser, const char* ignored, const char** findings) {
    return askParser(parser, findings, [&](BasicParser& asked) -> int {
        Findings found(ignored == nullptr ? "" : ignored);
        internal::checkVocabulary(asked, found);
        *findings = asked.keep(found.text());
        return found.code();
    });
}

}  // namespace zarn_3_3
