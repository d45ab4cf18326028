// What the modern face knows of a vocabulary beside the plain parser, and what it does in a parse.

#ifndef ZARN_MODERN_VOCABULARY_H
#define ZARN_MODERN_VOCABULARY_H

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "modern/item_record.h"
#include "parser/basic_parser.h"
#include "result/parse_result.h"
#include "zarn/event_handler.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

struct Rule {
    RuleKind kind;
    std::vector<std::string> names;
    std::vector<const ItemRecord*> items;  // when the vocabulary is settled
};

// Values of an item that were parsed apart from the command line: from the environment, or for one
// of several positional items.
struct Aside {
    const ItemRecord* item;
    Origin origin;
    std::unique_ptr<ParseResult> result;
};

// It is shared by the parser of the modern face and the outcomes of its parses.
class Vocabulary final : public EventHandler {
public:
    Vocabulary(const Tool& tool, int flags);
    Vocabulary(const Vocabulary&) = delete;
    Vocabulary& operator=(const Vocabulary&) = delete;
    ~Vocabulary() = default;

    void share() noexcept { ++owners_; }
    void release() noexcept;

    ItemRecord& declare(const char* section, ItemDescription& description);
    void add(Rule rule) { rules_.push_back(std::move(rule)); }
    void accept(unsigned habits) noexcept { habits_ = habits; }

    // To be called before a parse: asks what could not be asked before, and listens.
    void settle();

    BasicParser& plain() { return *plain_; }
    const Tool& tool() const { return tool_; }
    unsigned habits() const { return habits_; }
    bool has(ParserFlag flag) const { return (flags_ & flag) != 0; }
    const std::vector<std::unique_ptr<ItemRecord>>& items() const { return items_; }
    const std::vector<const ItemRecord*>& positionals() const { return positionals_; }
    // Of several positional items the first, under which all arguments are stored; else null.
    const ItemRecord* firstOfGroup() const {
        return positionals_.size() > 1 ? positionals_.front() : nullptr;
    }
    const std::vector<Rule>& rules() const { return rules_; }

    // The name by which a tool without one was called.
    const std::string& calledAs() const { return calledAs_; }
    void callAs(const std::string& name) { calledAs_ = name; }

    // The item with this name, or null.
    const ItemRecord* find(std::string_view name) const;

    // The same. A mistake when nothing is declared so, here or plainly.
    const ItemRecord* require(std::string_view name) const;

    // Whether an item, declared here or plainly, has this name.
    bool isName(std::string_view name) const;

    // The item that a user means by this name or beginning of a name; null when nothing begins so,
    // several do, or it was declared plainly.
    const ItemRecord* resolve(std::string_view text) const;

    // Whether anything has this name or begins so.
    bool isBeginning(std::string_view text) const;

    bool accepts(const ItemRecord& item, const Value& value);

    // Parses the argument, "--name=text", with a parser that knows this item alone, so that the
    // text is taken as a typed one is. A code of a failure leaves its text in `error`, which quotes
    // `typed` in place of the argument.
    int parseAside(const ItemRecord& item,
                   const std::string& argument,
                   const std::string& typed,
                   ParseResult& result,
                   std::string& error);

    // `asides`: what was parsed aside for what the result holds already.
    void beginParse(const ParseResult& result, std::vector<Aside> asides);
    std::vector<Aside> endParse() { return std::move(asides_); }

    // What is known of a value that was refused in this parse.
    FailureNote& told() { return told_; }

    // The message of a failed parse, and what is known beyond it.
    std::string explained(std::string message) const;

    bool onValueParse(const char* name, const Value& value) override;

private:
    void declarePlainly(const char* section, const ItemDescription& given, const ItemRecord& item);
    void describe(std::size_t index, const ItemRecord& item);
    void addPositional(const ItemRecord& item);
    void requireFreeNames(const ItemRecord& item) const;
    void requireOwnTarget(const ItemRecord& item) const;
    void requireSameActions(const ItemRecord& item) const;
    void requireActions(const ItemRecord& item) const;
    const ItemRecord* recordAt(std::size_t index) const;
    std::size_t indexOf(std::string_view form) const;
    const ItemRecord* actionWithoutPlace(const std::string& message) const;
    bool routesPositionals() const;
    bool takePositional(const Value& value);
    bool refusePositional(const ItemRecord& item, const Value& value);
    ParseResult& positionalAside(const ItemRecord& item);

    Tool tool_;
    std::string calledAs_;
    int flags_;
    unsigned habits_ = 0;
    std::size_t owners_ = 1;
    std::unique_ptr<BasicParser> plain_;
    std::vector<std::unique_ptr<ItemRecord>> items_;
    std::vector<const ItemRecord*> byIndex_;  // by the index of the item in the plain parser
    std::vector<const ItemRecord*> positionals_;
    std::set<const void*> targets_;  // the addresses of all variables
    std::vector<Rule> rules_;
    std::size_t settledItems_ = 0;
    std::size_t settledRules_ = 0;
    bool asksValues_ = false;
    bool isListening_ = false;

    // Of the parse in progress.
    std::string reason_;   // why a value was refused, to be put behind the message
    std::string instead_;  // a message in place of the plain one
    FailureNote told_;     // beyond what the plain parser notes
    std::size_t positionalCount_ = 0;
    std::vector<Aside> asides_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_VOCABULARY_H
