// What a parse of the modern face has found.

#ifndef ZARN_MODERN_OUTCOME_H
#define ZARN_MODERN_OUTCOME_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "modern/vocabulary.h"
#include "result/parse_result.h"
#include "zarn/typed/engine.h"

namespace zarn_3_3::internal {

class StoredOutcome final : public Outcome {
public:
    explicit StoredOutcome(Vocabulary& vocabulary);
    StoredOutcome(const StoredOutcome&) = delete;
    StoredOutcome& operator=(const StoredOutcome&) = delete;
    ~StoredOutcome() { vocabulary_.release(); }

    // See findValues.
    Origin find(const char* name, Value& last, std::vector<Value>* all) const;
    Origin find(const ItemRecord& item, Value& last, std::vector<Value>* all) const;

    Origin origin(const ItemRecord& item) const;

    // Adds its occurrences to those that are there.
    void addOccurrences(const char* name, std::map<int, Occurrence>& occurrences) const;

    // Ends with the code, and with `message` unless it is resultOk.
    void end(int resultCode, std::string message);

    Vocabulary& vocabulary() { return vocabulary_; }
    ParseResult& result() { return result_; }
    std::vector<Aside>& asides() { return asides_; }

private:
    // Some of the values under one name. A switch has one without a text for each occurrence.
    struct Values {
        const StoredOption* entry = nullptr;
        std::size_t begin = 0;
        std::size_t end = 0;

        bool empty() const { return begin == end; }
        Value operator[](std::size_t index) const;
    };

    static Values under(const ParseResult& result, std::string_view name);
    Values shareOf(const ItemRecord& item) const;
    Values aside(const ItemRecord& item, Origin origin) const;
    bool counts(const Value& value, const Value& other) const;
    void keepLast(const Values& values, const ItemRecord* item, Value& last) const;
    Origin choose(const std::string& name,
                  const ItemRecord* item,
                  Value& last,
                  std::vector<Value>* all) const;

    Origin chooseDefault(const std::string& name, Value& last, std::vector<Value>* all) const;

    Vocabulary& vocabulary_;
    ParseResult result_;
    std::vector<Aside> asides_;
    std::string message_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_OUTCOME_H
