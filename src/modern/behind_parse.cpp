#include "modern/behind_parse.h"

#include <memory>
#include <string_view>
#include <utility>

#include "modern/messages.h"
#include "modern/once.h"
#include "recognizers/messages.h"
#include "text/filled.h"

namespace zarn_3_3::internal {
namespace {

FailureNote& noteOf(StoredOutcome& outcome) { return outcome.vocabulary().plain().failure(); }

// "--name=text"; of a boolean "--name" or "--no-name". Empty for a text that is no boolean.
std::string argumentFor(const ItemRecord& item, std::string_view text) {
    // As an argument, so that the text is cut, completed and refused as a typed one is.
    if (item.type != vtBool) {
        return filled("--{}={}", {item.primaryName(), text});
    }
    for (const std::string_view yes : {"1", "true", "yes", "on"}) {
        if (text == yes) {
            return filled("--{}", {item.primaryName()});
        }
    }
    for (const std::string_view no : {"0", "false", "no", "off"}) {
        if (text == no) {
            return filled("--no-{}", {item.primaryName()});
        }
    }
    return "";
}

// The action of a modifier that was given; null when none was.
const ItemRecord* actionGiven(const StoredOutcome& outcome,
                              Vocabulary& vocabulary,
                              const ItemRecord& modifier) {
    for (const std::string& name : modifier.plain->tags) {
        const ItemRecord& action = vocabulary.require(name);
        // An action may have a default, which asks for nothing.
        if (outcome.origin(action) > Origin::byDefault) {
            return &action;
        }
    }
    return nullptr;
}

// The value of the variable of an item that was not given; null when there is none, or when a
// modifier goes with none of its actions.
const char* variableFor(const ItemRecord& item, StoredOutcome& outcome) {
    if (*item.extras().environment == '\0' || outcome.origin(item) > Origin::byDefault) {
        return nullptr;
    }
    if (item.isModifier() && actionGiven(outcome, outcome.vocabulary(), item) == nullptr) {
        return nullptr;
    }
    const char* const text = item.extras().readVariable(item.extras().environment);
    return text == nullptr || *text == '\0' ? nullptr : text;
}

int takeVariable(const ItemRecord& item,
                 const char* text,
                 StoredOutcome& outcome,
                 std::string& error) {
    // This is what messages quote: users have to know which variable to look at.
    const std::string assignment = filled("{}={}", {item.extras().environment, text});
    const std::string argument = argumentFor(item, text);
    if (argument.empty()) {
        // The parse has no say here: on a command line a boolean has no text at all.
        error = messages::invalidValue(assignment, messages::noBoolean);
        noteOf(outcome).make(notBoolean, {}, assignment, item.primaryName(), text);
        return resultRuleBroken;
    }
    Aside aside{&item, Origin::environment, std::make_unique<ParseResult>()};
    const int code =
        outcome.vocabulary().watch().parseAside(item, argument, assignment, *aside.result, error);
    // Kept beside the result, not in it: the plain queries know nothing of the environment.
    outcome.asides().push_back(std::move(aside));
    noteOf(outcome) = std::move(outcome.vocabulary().watch().told());
    return code;
}

std::string needs(const ItemRecord& item, const ItemRecord& other, StoredOutcome& outcome) {
    noteOf(outcome).make(optionNeeded, {}, {}, item.primaryName(), other.primaryName());
    return messages::needs(item, other);
}

// Why the item is missed; empty when it is not.
std::string missing(const ItemRecord& item, StoredOutcome& outcome) {
    if (!item.isModifier()) {
        noteOf(outcome).make(requiredMissing, {}, {}, item.primaryName());
        return messages::isRequired(item);
    }
    // The action that was typed is named: without it the modifier would not be missed.
    const ItemRecord* const action = actionGiven(outcome, outcome.vocabulary(), item);
    return action == nullptr ? "" : needs(*action, item, outcome);
}

// The items of a rule.
struct RuleState {
    std::vector<const ItemRecord*> given;
    std::vector<const ItemRecord*> others;
    std::string all;
};

RuleState stateOf(const Rule& rule, const StoredOutcome& outcome) {
    RuleState state;
    for (const ItemRecord* const item : rule.items) {
        state.all += filled("{}{}'", {state.all.empty() ? "'" : ", '", item->called()});
        (outcome.origin(*item) > Origin::byDefault ? state.given : state.others).push_back(item);
    }
    return state;
}

void noteOneRequired(const Rule& rule, StoredOutcome& outcome) {
    noteOf(outcome).make(oneRequired);
    Failure* const failure = noteOf(outcome).get();
    for (std::size_t i = 0; failure != nullptr && i < rule.items.size(); ++i) {
        failure->candidates.append(i == 0 ? "" : "\n").append(rule.items[i]->primaryName());
    }
}

// Why the rule is broken; empty when it is not.
std::string broken(const Rule& rule, StoredOutcome& outcome) {
    const RuleState state = stateOf(rule, outcome);
    // The first two that are given are told, in the order of the rule: one pair is enough to mend.
    const bool wantsOne = rule.kind == RuleKind::exactlyOne || rule.kind == RuleKind::atMostOne;
    if (wantsOne && state.given.size() > 1) {
        const ItemRecord& other = *state.given[1];
        noteOf(outcome).make(
            optionsExclude, {}, {}, state.given[0]->primaryName(), other.primaryName());
        return messages::exclude(*state.given[0], other);
    }
    if (rule.kind == RuleKind::exactlyOne && state.given.empty()) {
        noteOneRequired(rule, outcome);
        return messages::oneRequired(state.all);
    }
    const bool isAsked = !wantsOne && !state.given.empty() &&
                         (rule.kind == RuleKind::together || state.given[0] == rule.items[0]);
    return isAsked && !state.others.empty() ? needs(*state.given[0], *state.others[0], outcome)
                                            : "";
}

}  // namespace

bool isAloneGiven(const StoredOutcome& outcome) {
    for (const auto& item : outcome.vocabulary().items()) {
        if (item->isAlone && outcome.origin(*item) > Origin::byDefault) {
            return true;
        }
    }
    return false;
}

int readEnvironment(StoredOutcome& outcome, std::string& error) {
    if (!outcome.vocabulary().demands().environment) {
        return resultOk;
    }
    for (const auto& item : outcome.vocabulary().items()) {
        if (const char* const text = variableFor(*item, outcome)) {
            const int code = takeVariable(*item, text, outcome, error);
            if (code != resultOk) {
                return code;
            }
        }
    }
    return resultOk;
}

int checkRequired(StoredOutcome& outcome, std::string& error) {
    if (!outcome.vocabulary().demands().required) {
        return resultOk;
    }
    for (const auto& item : outcome.vocabulary().items()) {
        // A default or a variable will do: what is required is a value, from wherever.
        if (item->isRequired && outcome.origin(*item) == Origin::absent) {
            error = missing(*item, outcome);
        }
        if (!error.empty()) {
            return resultRuleBroken;
        }
    }
    return resultOk;
}

int checkRules(StoredOutcome& outcome, std::string& error) {
    for (const Rule& rule : outcome.vocabulary().rules()) {
        error = broken(rule, outcome);
        if (!error.empty()) {
            return resultRuleBroken;
        }
    }
    error = differing(outcome);
    return error.empty() ? resultOk : resultRuleBroken;
}

}  // namespace zarn_3_3::internal
