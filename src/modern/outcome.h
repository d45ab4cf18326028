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

// What counts of an item.
struct Found {
    Origin origin = Origin::absent;
    Value last;             // the value that counts alone; not found when there is none
    std::size_t count = 0;  // of the values that were given, or 1
};

class StoredOutcome final : public Outcome {
public:
    explicit StoredOutcome(Vocabulary& vocabulary);
    StoredOutcome(const StoredOutcome&) = delete;
    StoredOutcome& operator=(const StoredOutcome&) = delete;
    ~StoredOutcome() { vocabulary_.release(); }

    // See findValues.
    Found find(const char* name, std::vector<Value>* all) const;
    Found find(const ItemRecord& item, std::vector<Value>* all) const;

    Origin origin(const ItemRecord& item) const;

    // Adds its occurrences to those that are there.
    void addOccurrences(const char* name, std::map<int, Occurrence>& occurrences) const;

    // Ends with the code, and with `message` unless it is resultOk.
    void end(int resultCode, std::string message);

    Vocabulary& vocabulary() { return vocabulary_; }
    const Vocabulary& vocabulary() const { return vocabulary_; }
    ParseResult& result() { return result_; }
    std::vector<Aside>& asides() { return asides_; }

private:
    // Some of the values under one name. A switch has one without a text for each occurrence.
    struct Values {
        const StoredOption* entry = nullptr;
        std::size_t begin = 0;
        std::size_t end = 0;

        std::size_t size() const { return end - begin; }
        int positionOf(std::size_t index) const;
        Value operator[](std::size_t index) const;
    };

    static Values valuesOf(const StoredOption* entry);
    Values shareOf(const ItemRecord& item) const;
    Values aside(const ItemRecord& item, Origin origin) const;
    bool counts(int position, int other) const;
    std::size_t countingOf(const Values& values) const;
    Found choose(std::string_view name, const ItemRecord& item, std::vector<Value>* all) const;
    static void appendInOrder(const Values& share,
                              const Values& own,
                              const ItemRecord& item,
                              std::vector<Value>& all);
    static Found chooseDefault(const StoredOption* entry, std::vector<Value>* all);

    Vocabulary& vocabulary_;
    ParseResult result_;
    std::vector<Aside> asides_;
    std::string message_;
};

}  // namespace zarn_3_3::internal

#endif  // ZARN_MODERN_OUTCOME_H
