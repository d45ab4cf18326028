#include "modern/vocabulary.h"

#include <algorithm>
#include <new>
#include <utility>

#include "modern/failures.h"
#include "modern/messages.h"
#include "options/registered_option_storage.h"
#include "parser/messages.h"
#include "recognizers/messages.h"
#include "text/filled.h"
#include "zarn/option.h"
#include "zarn/typed/parser.h"

namespace zarn_3_3::internal {
namespace {

// Hears what is parsed aside for one item.
class Asking final : public EventHandler {
public:
    Asking(Vocabulary& vocabulary, const ItemRecord& item) : vocabulary_(vocabulary), item_(item) {}

    bool onValueParse(const char* /*name*/, const Value& value) override {
        return vocabulary_.accepts(item_, value);
    }

private:
    Vocabulary& vocabulary_;
    const ItemRecord& item_;
};

// Whether a text that is no number of its type looks like one, and so is beyond its bounds.
bool looksLikeNumber(std::string_view text) {
    text.remove_prefix(text.find_first_not_of("+-") == 1 ? 1 : 0);
    return !text.empty() && text[0] >= '0' && text[0] <= '9' &&
           text.find_first_not_of("0123456789.e+-") == std::string_view::npos;
}

bool isBounded(const ItemRecord& item) {
    return item.least.type() != vtNull || item.greatest.type() != vtNull;
}

}  // namespace

Vocabulary::Vocabulary(const Tool& tool, int flags)
    : tool_(tool), flags_(flags), plain_(std::make_unique<BasicParser>(flags)) {}

void Vocabulary::release() noexcept {
    if (--owners_ == 0) {
        delete this;
    }
}

ItemRecord& Vocabulary::declare(const char* section, ItemDescription& description) {
    items_.push_back(std::make_unique<ItemRecord>(description));
    ItemRecord& item = *items_.back();
    try {
        requireNames(item);
        requireDefault(item);
        requireOwnTarget(item);
        requireSameActions(item);
        declarePlainly(section, description, item);
    } catch (...) {
        items_.pop_back();
        throw;
    }
    if (item.target != nullptr) {
        targets_.insert(item.target->address());
    }
    asksValues_ = asksValues_ || item.checks != nullptr;
    return item;
}

void Vocabulary::declarePlainly(const char* section,
                                const ItemDescription& given,
                                const ItemRecord& item) {
    if (item.type == vtBool) {
        requireFreeNames(item);  // its "no-" forms are not compared when it is declared
    }
    const RegisteredOptionStorage& registry = plain_->vocabulary();
    const std::size_t index = registry.items().size();
    byIndex_.resize(index + 1);
    positionals_.reserve(positionals_.size() + 1);
    IOption& made =
        item.role == Role::action
            ? plain_->action(given.names, given.description, item.type, section)
            : plain_->modifier(given.names, given.actions, given.description, item.type, section);
    if (registry.items().size() == index) {
        requireFreeNames(item);
        throw std::bad_alloc();
    }
    item.configure(made);
    describe(index, item);
    if (item.role == Role::positional) {
        addPositional(item);
    }
    byIndex_[index] = &item;  // last: nothing fails behind it
}

// What help shows of the item beyond its plain declaration.
void Vocabulary::describe(std::size_t index, const ItemRecord& item) {
    RegisteredOptionStorage& registry = plain_->vocabulary();
    registry.expect(index, item.isRequired, !item.takesMany());
    if (!item.shownName.empty()) {
        registry.nameValue(index, item.shownName);
    }
    if (!item.environment.empty()) {
        registry.nameVariable(index, item.environment);
    }
}

// The first item takes the arguments of all of them, so of several it has to take any text; what
// each wants is seen to when an argument has found its item.
void Vocabulary::addPositional(const ItemRecord& item) {
    if (positionals_.size() == 1) {
        plain_->vocabulary().takeAnyText(indexOf(positionals_[0]->primaryName()));
    }
    positionals_.push_back(&item);
}

void Vocabulary::requireFreeNames(const ItemRecord& item) const {
    const auto requireFree = [&](const std::string& form) {
        const std::size_t index = indexOf(form);
        if (index != NameIndex::none) {
            const ItemRecord* const owner = recordAt(index);
            const RegisteredOptionStorage& registry = plain_->vocabulary();
            mistake(item.allNames.c_str(),
                    messages::nameTaken(form,
                                        owner != nullptr ? owner->allNames
                                                         : registry.items()[index].primaryName()));
        }
    };
    for (const std::string& name : item.names) {
        requireFree(name);
        if (item.type == vtBool) {
            requireFree(filled("{}{}", {noPrefix, name}));
        }
    }
}

void Vocabulary::requireOwnTarget(const ItemRecord& item) const {
    if (item.target == nullptr || targets_.count(item.target->address()) == 0) {
        return;
    }
    const auto owner = std::find_if(items_.begin(), items_.end(), [&](const auto& other) {
        return other->target != nullptr && other->target->address() == item.target->address();
    });
    mistake(item.allNames.c_str(), messages::variableTaken((*owner)->allNames));
}

// All arguments are stored under the first positional item, whose actions are looked at.
void Vocabulary::requireSameActions(const ItemRecord& item) const {
    if (item.role == Role::positional && !positionals_.empty() &&
        positionals_.front()->actions != item.actions) {
        mistake(item.allNames.c_str(), messages::otherActions);
    }
}

void Vocabulary::settle() {
    for (; settledItems_ < items_.size(); ++settledItems_) {
        requireActions(*items_[settledItems_]);
    }
    for (; settledRules_ < rules_.size(); ++settledRules_) {
        Rule& rule = rules_[settledRules_];
        rule.items.clear();
        for (const std::string& name : rule.names) {
            const ItemRecord* const item = find(name);
            if (item == nullptr) {
                mistake(name.c_str(), messages::noSuchOption);
            }
            rule.items.push_back(item);
        }
    }
    if (!isListening_ && (asksValues_ || routesPositionals())) {
        isListening_ = plain_->addHandler(this);
        if (!isListening_) {
            throw std::bad_alloc();
        }
    }
}

void Vocabulary::requireActions(const ItemRecord& item) const {
    for (const std::string& name : item.actions) {
        const std::size_t index = indexOf(name);
        const OptionList& items = plain_->vocabulary().items();
        if (index == NameIndex::none || items[index].kind != kindAction ||
            items[index].primaryName() != name) {
            mistake(item.allNames.c_str(), messages::noSuchAction(name));
        }
    }
}

std::size_t Vocabulary::indexOf(std::string_view form) const {
    return plain_->vocabulary().names().first(form);
}

const ItemRecord* Vocabulary::recordAt(std::size_t index) const {
    return index < byIndex_.size() ? byIndex_[index] : nullptr;
}

const ItemRecord* Vocabulary::find(std::string_view name) const {
    const ItemRecord* const item = recordAt(indexOf(name));
    const bool isNamed =
        item != nullptr &&
        std::find(item->names.begin(), item->names.end(), name) != item->names.end();
    return isNamed ? item : nullptr;
}

bool Vocabulary::isName(std::string_view name) const {
    return plain_->vocabulary().names().isAnyNamed(name, [](std::size_t) { return true; });
}

const ItemRecord* Vocabulary::require(std::string_view name) const {
    const ItemRecord* const item = find(name);
    if (item == nullptr && !isName(name)) {
        mistake(std::string(name).c_str(), messages::noSuchOption);
    }
    return item;
}

const ItemRecord* Vocabulary::resolve(std::string_view text) const {
    const RegisteredOptionStorage& registry = plain_->vocabulary();
    const std::size_t exact = indexOf(text);
    if (exact != NameIndex::none) {
        return recordAt(exact);
    }
    const PrefixIndex::Found found = registry.findBeginning(text);
    return found.first != KeptTexts::none && found.isOnly
               ? recordAt(registry.names().firstWithForm(found.first))
               : nullptr;
}

bool Vocabulary::isBeginning(std::string_view text) const {
    return indexOf(text) != NameIndex::none ||
           plain_->vocabulary().findBeginning(text).first != KeptTexts::none;
}

bool Vocabulary::accepts(const ItemRecord& item, const Value& value) {
    reason_.clear();
    if ((habits_ & loneDash) != 0 && item.type == vtString && std::string_view(value.text) == "-") {
        return true;  // the standard input
    }
    const Value read = item.replaced(value);
    for (const Check* check = item.checks.get(); check != nullptr; check = check->next.get()) {
        if (!check->holds(read, reason_)) {
            const bool isUntold = reason_.empty() && isBounded(item);
            reason_ = isUntold ? boundsText(item.least, item.greatest) : reason_;
            told_.make(checkFailed, {}, value.text, item.primaryName(), value.text);
            return false;
        }
    }
    return true;
}

int Vocabulary::parseAside(const ItemRecord& item,
                           const std::string& argument,
                           const std::string& typed,
                           ParseResult& result,
                           std::string& error) {
    BasicParser parser(flags_ | flagUnknownIsError);
    item.configure(parser.option(item.allNames.c_str(), "", item.type, ""));
    Asking asking(*this, item);
    if (!parser.addHandler(&asking)) {
        throw std::bad_alloc();
    }
    const char* const arguments[] = {"", argument.c_str()};
    const int code = parser.parseArgsVector(2, arguments, &result);
    refine(parser.failure(), told_.get());
    told_ = std::move(parser.failure());
    if (Failure* const failure = told_.get()) {
        failure->index = 0;
        retype(*failure, typed);
    }
    error = code == resultOk ? "" : explained(parser.getErrorDesc());
    const std::size_t quoted = error.find(argument);
    if (quoted != std::string::npos) {
        error.replace(quoted, argument.size(), typed);
    }
    return code;
}

void Vocabulary::beginParse(const ParseResult& result, std::vector<Aside> asides) {
    reason_.clear();
    instead_.clear();
    told_.clear();
    asides_ = std::move(asides);
    const StoredOption* const given =
        positionals_.empty() ? nullptr : result.find(positionals_[0]->primaryName());
    positionalCount_ = given == nullptr ? 0 : given->values.size();
}

std::string Vocabulary::explained(std::string message) const {
    if (!instead_.empty()) {
        return instead_;
    }
    if (!reason_.empty()) {
        return messages::withReason(message, reason_);
    }
    if (const ItemRecord* const action = actionWithoutPlace(message)) {
        return messages::takesNo(*action, *positionals_.front());
    }
    // A number that does not fit: "...: Option 'jobs' can not parse '99999999999' value, ..."
    constexpr std::string_view beforeName = "': Option '";
    constexpr std::string_view beforeValue = "' can not parse '";
    const std::size_t name = message.find(beforeName);
    const std::size_t end = message.find(beforeValue);
    if (end == std::string::npos || name >= end) {
        return message;
    }
    const std::size_t first = name + beforeName.size();
    const ItemRecord* const item = find(std::string_view(message).substr(first, end - first));
    const std::string_view value = std::string_view(message).substr(end + beforeValue.size());
    if (item != nullptr && isBounded(*item) && looksLikeNumber(value.substr(0, value.find('\'')))) {
        message.pop_back();  // its full stop
        return messages::withReason(message, boundsText(item->least, item->greatest));
    }
    return message;
}

// Nobody has typed the name of a positional item: it is told otherwise that an action takes none.
const ItemRecord* Vocabulary::actionWithoutPlace(const std::string& message) const {
    const auto refuses = [&](const auto& item) {
        return item->role == Role::action &&
               message == messages::actionRefusesOption(item->primaryName(),
                                                        positionals_.front()->primaryName());
    };
    const auto action = positionals_.empty() || positionals_.front()->actions.empty()
                            ? items_.end()
                            : std::find_if(items_.begin(), items_.end(), refuses);
    return action != items_.end() ? action->get() : nullptr;
}

bool Vocabulary::routesPositionals() const {
    return positionals_.size() > 1 ||
           (positionals_.size() == 1 && !positionals_.front()->takesMany());
}

bool Vocabulary::onValueParse(const char* name, const Value& value) {
    const ItemRecord* const item = find(name);
    if (item == nullptr) {
        return true;
    }
    const bool isRouted = routesPositionals() && item == positionals_.front();
    return isRouted ? takePositional(value) : accepts(*item, value);
}

bool Vocabulary::takePositional(const Value& value) {
    const std::size_t last = positionals_.size() - 1;
    const std::size_t number = positionalCount_++;
    const ItemRecord& item = *positionals_[std::min(number, last)];
    if (number > last && !item.takesMany()) {
        instead_ = messages::unexpectedArgument(value.text);
        told_.make(unexpectedArgument, {}, value.text, "", value.text);
        return false;
    }
    if (last == 0 || !item.needsOwnParse()) {
        return accepts(item, value) || refusePositional(item, value);
    }
    const std::string argument = filled("--{}={}", {item.primaryName(), value.text});
    std::string error;
    const int code = parseAside(item, argument, value.text, positionalAside(item), error);
    instead_ = error;
    return code == resultOk;
}

// The plain message would name the item under which the arguments are stored.
bool Vocabulary::refusePositional(const ItemRecord& item, const Value& value) {
    instead_ = messages::withReason(
        messages::vetoedValue(value.text, item.primaryName(), value.text), reason_);
    return false;
}

ParseResult& Vocabulary::positionalAside(const ItemRecord& item) {
    for (const Aside& each : asides_) {
        if (each.item == &item && each.origin == Origin::commandLine) {
            return *each.result;
        }
    }
    asides_.push_back({&item, Origin::commandLine, std::make_unique<ParseResult>()});
    return *asides_.back().result;
}

}  // namespace zarn_3_3::internal
