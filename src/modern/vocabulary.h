// What the modern face knows of a vocabulary beside the plain parser.

#ifndef ZARN_MODERN_VOCABULARY_H
#define ZARN_MODERN_VOCABULARY_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "modern/item_record.h"
#include "modern/parse_watch.h"
#include "parser/basic_parser.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

struct Rule {
    RuleKind kind;
    std::vector<std::string> names;
    std::vector<const ItemRecord*> items;  // when the vocabulary is settled
};

// What some item asks of each parse. What none asks need not be looked for in all of them.
struct Demands {
    bool checks = false;
    bool environment = false;
    bool required = false;
    bool once = false;
};

// It is shared by the parser of the modern face and the outcomes of its parses.
class Vocabulary final {
public:
    Vocabulary(const Tool& tool, int flags);
    Vocabulary(const Vocabulary&) = delete;
    Vocabulary& operator=(const Vocabulary&) = delete;
    ~Vocabulary() { internal::release(lineChecks_); }

    void share() noexcept { ++owners_; }
    void release() noexcept;

    // Takes the item, whether it is declared or throws.
    ItemRecord& declare(const char* section, ItemDescription* description);
    void add(Rule rule) { rules_.push_back(std::move(rule)); }
    void add(Check* check) noexcept { append(lineChecks_, check); }
    void accept(unsigned habits) noexcept { habits_ = habits; }
    void showDefaults() noexcept { showsDefaults_ = true; }

    // To be called before a parse: asks what could not be asked before, and listens.
    void settle();

    BasicParser& plain() { return *plain_; }
    ParseWatch& watch() { return watch_; }
    const Tool& tool() const { return tool_; }
    int flags() const { return flags_; }
    unsigned habits() const { return habits_; }
    bool has(ParserFlag flag) const { return (flags_ & flag) != 0; }
    // Those declared plainly come in with the next of ours, or when the vocabulary is settled.
    const std::vector<std::unique_ptr<ItemRecord>>& items() const { return items_; }
    const std::vector<const ItemRecord*>& positionals() const { return positionals_; }
    // Of several positional items the first, under which all arguments are stored; else null.
    const ItemRecord* firstOfGroup() const {
        return positionals_.size() > 1 ? positionals_.front() : nullptr;
    }
    const Demands& demands() const { return demands_; }  // known when it is settled
    const std::vector<Rule>& rules() const { return rules_; }
    const Check* lineChecks() const { return lineChecks_; }
    // Whether arguments may look other than the plain parser has them.
    bool isAdapting() const { return habits_ != 0 || impliesValues_; }

    // The name by which a tool without one was called.
    const std::string& calledAs() const { return calledAs_; }
    void callAs(const std::string& name) { calledAs_ = name; }

    // The item with this name, or null.
    const ItemRecord* find(std::string_view name) const;

    // The same. A mistake when nothing is declared so.
    const ItemRecord& require(std::string_view name) const;

    // Whether an item, declared here or plainly, has this name.
    bool isName(std::string_view name) const;

    // The item that a user means by this name or beginning of a name; null when nothing begins so,
    // or several do.
    const ItemRecord* resolve(std::string_view text) const;

    // Whether anything has this name or begins so.
    bool isBeginning(std::string_view text) const;

private:
    void showVariable(ItemRecord& item) const;
    void declarePlainly(const char* section, ItemRecord& item);
    void keepTexts(ItemRecord& item);
    void describe(std::size_t index, const ItemRecord& item);
    void addPositional(const ItemRecord& item);
    void takeInPlainItems();
    void requireFreeNames(const ItemRecord& item) const;
    void requireFree(const ItemRecord& item, std::string_view form) const;
    void requireSameActions(const ItemRecord& item) const;
    void addDemands(const ItemRecord& item);
    void requireActions(const ItemRecord& item) const;
    void requireOwnTargets() const;
    void settle(Rule& rule) const;
    ItemRecord* recordAt(std::size_t index) const;
    std::size_t indexOf(std::string_view form) const;

    Tool tool_;
    std::string calledAs_;
    int flags_;
    unsigned habits_ = 0;
    std::size_t owners_ = 1;
    std::unique_ptr<BasicParser> plain_;
    std::vector<std::unique_ptr<ItemRecord>> items_;  // each where it stands in the plain parser
    std::vector<const ItemRecord*> positionals_;
    std::vector<Rule> rules_;
    Check* lineChecks_ = nullptr;
    bool showsDefaults_ = false;
    bool impliesValues_ = false;
    Demands demands_;
    std::size_t settledItems_ = 0;
    std::size_t settledRules_ = 0;
    ParseWatch watch_;
    bool isListening_ = false;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_VOCABULARY_H
